#include "FileSet.h"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

#include "SvgWriter.h"

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const fs::path& iPath, const std::string& iReason) {
    throw std::runtime_error("cannot write " + iPath.string() + ": " + iReason);
}

} // namespace

FileSet::~FileSet() {
    for (const File& file : _files) {
        std::error_code ignored;
        if (!file.temporary.empty()) fs::remove(file.temporary, ignored);
    }
}

void FileSet::AddSvg(const fs::path& iPath, const VEKPrtModel& iModel, int iPage) {
    std::ostringstream svg;
    if (!vekprt::WriteSvg(iModel, iPage, svg) || !svg) Fail(iPath, "the page cannot be drawn as SVG");
    _files.push_back({iPath, svg.str(), {}, {}});
}

void FileSet::Commit() {
    for (File& file : _files) {
        std::error_code error;
        const fs::file_status status = fs::status(file.path, error);
        const fs::file_type type = status.type();
        if (type == fs::file_type::none) Fail(file.path, error.message());
        if (type == fs::file_type::directory) Fail(file.path, "it is a directory");
        const bool isStream = type == fs::file_type::character || type == fs::file_type::fifo;
        const bool isRegular = type == fs::file_type::regular;
        if (!isStream && !isRegular && type != fs::file_type::not_found)
            Fail(file.path, "it is no regular file");

        file.target = file.path;
        while (!isStream && fs::is_symlink(file.target))
            file.target = file.target.parent_path() / fs::read_symlink(file.target);
        // The process number keeps two runs into one directory apart.
        if (!isStream)
            file.temporary = file.target.parent_path() / (".part-" + std::to_string(::getpid()) + "-" +
                                                          std::to_string(&file - _files.data()));
        std::ofstream stream(isStream ? file.target : file.temporary, std::ios::binary | std::ios::trunc);
        stream << file.content;
        stream.close();
        if (!stream) Fail(file.path, std::generic_category().message(errno));
        if (isRegular) fs::permissions(file.temporary, status.permissions(), error);
    }
    for (File& file : _files) {
        std::error_code error;
        if (!file.temporary.empty()) fs::rename(file.temporary, file.target, error);
        if (error) Fail(file.path, error.message());
        file.temporary.clear();
    }
}
