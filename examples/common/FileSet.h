// Writes several files so that each is complete or absent.
#ifndef FileSet_H
#define FileSet_H

#include <filesystem>
#include <string>
#include <vector>

class VEKPrtModel;

/// Files that are written beside their targets and then renamed.
///
/// No target is touched before Commit has written the last of them.  A link stays, and its target is
/// replaced.  A character device or a pipe is written to; anything else that is not a regular file is
/// refused.
class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    /// Removes what was written but not renamed.
    ~FileSet();

    /// Adds the page at position \p iPage (from 1) in the format of the file's extension: .svg, which is also
    /// that of files without extension, .png, .txt for a dump, or .pdf for all pages.  Throws
    /// std::runtime_error when the extension is another one or the page cannot be drawn.
    void Add(const std::filesystem::path& iPath, const VEKPrtModel& iModel, int iPage);

    /// Throws std::runtime_error when a file cannot be written.
    void Commit();

private:
    struct File {
        std::filesystem::path path; // as it was given
        std::string content;
        std::filesystem::path target;    // with links resolved
        std::filesystem::path temporary; // empty when there is none
    };

    std::vector<File> _files;
};

/// Makes the directory if it is missing; throws std::runtime_error when that fails.
void MakeDirectory(const std::filesystem::path& iPath);

#endif
