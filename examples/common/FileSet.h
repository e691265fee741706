// Writes several files so that each is complete or absent.
#ifndef FileSet_H
#define FileSet_H

#include <filesystem>
#include <string>
#include <vector>

class VEKPrtModel;

/// Files that are written beside their targets and then renamed.
///
/// Until Commit has written the last of them, no target is touched.  A link stays, and what it leads to is
/// written.  A character device or a pipe is written as it is; anything else that is no regular file is
/// refused.  Directories are not made.
class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    /// Removes what was written but not renamed.
    ~FileSet();

    /// Adds the page at position \p iPage (from 1) as SVG.  Throws std::runtime_error when it cannot be
    /// drawn.
    void AddSvg(const std::filesystem::path& iPath, const VEKPrtModel& iModel, int iPage);

    /// Throws std::runtime_error when a file cannot be written.
    void Commit();

private:
    struct File {
        std::filesystem::path path; // as it was given
        std::string content;
        std::filesystem::path target;    // where the links of the path lead
        std::filesystem::path temporary; // empty when there is none
    };

    std::vector<File> _files;
};

#endif
