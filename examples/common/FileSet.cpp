#include "FileSet.h"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

#ifdef VEKPRT_HAS_CAIRO // set by CMake when the consumer that draws by cairo is built
#include "CairoWriter.h"
#endif
#include "SvgWriter.h"
#include "VEKPrtDump.h"

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

void FileSet::Add(const fs::path& iPath, const VEKPrtModel& iModel, int iPage) {
    const fs::path extension = iPath.extension();
    std::ostringstream content;
    bool isDrawn = false;
    if (extension.empty() || extension == ".svg") {
        isDrawn = static_cast<bool>(vekprt::WriteSvg(iModel, iPage, content));
    } else if (extension == ".txt") {
        vekprt::Dump(content, iModel);
        isDrawn = true;
#ifdef VEKPRT_HAS_CAIRO
    } else if (extension == ".pdf") {
        isDrawn = static_cast<bool>(vekprt::WritePdf(iModel, content));
    } else if (extension == ".png") {
        constexpr double dotsPerInch = 150.0;
        isDrawn = static_cast<bool>(vekprt::WritePng(iModel, iPage, dotsPerInch, content));
#endif
    } else {
        Fail(iPath, "no such format: " + extension.string());
    }
    if (!isDrawn || !content) Fail(iPath, "the page cannot be drawn");
    _files.push_back({iPath, content.str(), {}, {}});
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
            Fail(file.path, "it is not a regular file");

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

void MakeDirectory(const fs::path& iPath) {
    std::error_code error;
    fs::create_directories(iPath, error);
    // Some libraries report an error when the directory exists under another spelling.
    if (!fs::is_directory(iPath))
        throw std::runtime_error("cannot make directory " + iPath.string() + ": " + error.message());
}
