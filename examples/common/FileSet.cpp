#include "FileSet.h"

#include <fstream>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

FileSet::~FileSet() {
    for (const File& file : _files) {
        std::error_code ignored;
        if (file.written) fs::remove(file.temporary, ignored);
    }
}

fs::path FileSet::Add(const std::string& iName, std::string iContent) {
    fs::path target = _directory / iName;
    // The process number keeps two runs into one directory apart.
    fs::path temporary = _directory / ("." + iName + "." + std::to_string(::getpid()) + ".part");
    _files.push_back({target, std::move(temporary), std::move(iContent), false});
    return target;
}

void FileSet::Commit() {
    std::error_code error;
    fs::create_directories(_directory, error);
    // Some libraries call it an error that the directory is there already under another spelling.
    if (!fs::is_directory(_directory))
        throw std::runtime_error("cannot make directory " + _directory.string());
    for (const File& file : _files)
        if (fs::is_directory(file.target, error))
            throw std::runtime_error("cannot write " + file.target.string() + ": it is a directory");
    for (File& file : _files) {
        std::ofstream stream(file.temporary, std::ios::binary | std::ios::trunc);
        file.written = stream.is_open();
        stream << file.content;
        stream.close();
        if (!stream) throw std::runtime_error("cannot write to directory " + _directory.string());
    }
    for (File& file : _files) {
        fs::rename(file.temporary, file.target, error);
        if (error) throw std::runtime_error("cannot write " + file.target.string() + ": " + error.message());
        file.written = false;
    }
}
