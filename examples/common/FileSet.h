// Writes several files so that each is complete or absent.
#ifndef FileSet_H
#define FileSet_H

#include <filesystem>
#include <string>
#include <vector>

/// Files of a directory, written beside their targets and then renamed.
///
/// Until Commit has written the last of them, no target is touched.
class FileSet {
public:
    explicit FileSet(std::filesystem::path iDirectory) : _directory(std::move(iDirectory)) {}
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    /// Removes what was written but not renamed.
    ~FileSet();

    /// Returns the path that the file will have.
    std::filesystem::path Add(const std::string& iName, std::string iContent);

    /// Makes the directory if it is missing.  Throws std::runtime_error when a file cannot be written.
    void Commit();

private:
    struct File {
        std::filesystem::path target;
        std::filesystem::path temporary;
        std::string content;
        bool written;
    };

    std::filesystem::path _directory;
    std::vector<File> _files;
};

#endif
