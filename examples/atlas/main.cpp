// Draws an atlas from country outlines: one SVG file per page.
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "AtlasError.h"
#include "AtlasModel.h"
#include "Elements.h"
#include "FileSet.h"
#include "TopoJson.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtModel.h"

namespace {

constexpr int kDuplicatedPage = 2;

std::string ReadFile(const std::string& iPath) {
    std::error_code ignored;
    // Opening a directory succeeds; reading it does not.
    if (std::filesystem::is_directory(iPath, ignored)) throw AtlasError("it is a directory");
    std::ifstream stream(iPath, std::ios::binary);
    if (!stream) throw AtlasError(std::strerror(errno));
    std::ostringstream content;
    // Without a single character, inserting the buffer counts as a failure.
    if (stream.peek() != std::ifstream::traits_type::eof()) content << stream.rdbuf();
    if (stream.bad() || !content) throw AtlasError("it cannot be read");
    return content.str();
}

Topology ReadInput(const std::string& iPath) {
    try {
        return ReadTopology(ReadFile(iPath));
    } catch (const AtlasError& error) {
        throw AtlasError(iPath + ": " + error.what());
    }
}

/// The element itself and all below it.
int CountElements(VEKPrtGraphicPrimitiveElt& ioElement) {
    VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
    if (auto* const group = dynamic_cast<VEKPrtGroupElt*>(&ioElement)) group->GetChildren(children);
    if (auto* const image = dynamic_cast<VEKPrtImageElt*>(&ioElement)) image->GetChildren(children);
    int count = 1;
    for (int i = 1; children && i <= children->Size(); ++i)
        count += CountElements(*static_cast<VEKPrtGraphicPrimitiveElt*>((*children)[i]));
    return count;
}

/// Pages count from 1; lent by the model.
VEKPrtImageElt& PageAt(const VEKPrtModel& iModel, int iPage) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    auto* const page = images ? static_cast<VEKPrtImageElt*>((*images)[iPage]) : nullptr;
    if (!page) throw AtlasError("the model has no page " + std::to_string(iPage));
    return *page;
}

/// A model with a duplicate of one page, which shares nothing with that page but its font.
VEKRef<VEKPrtModel> ModelWithDuplicate(VEKPrtImageElt& ioPage) {
    VEKPrtGraphicPrimitiveElt* copy = nullptr;
    ioPage.Duplicate(copy);
    const auto duplicate = VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(copy);
    auto* const image = dynamic_cast<VEKPrtImageElt*>(duplicate.Get());
    if (!image) throw std::bad_alloc();
    auto model = Make<VEKPrtModel>();
    model->AddImage(image);
    return model;
}

void Run(const std::string& iInput, const std::string& iDirectory) {
    const Atlas atlas(ReadInput(iInput));
    const VEKRef<VEKPrtModel> second = ModelWithDuplicate(PageAt(atlas.Model(), kDuplicatedPage));

    FileSet files;
    std::ostringstream report;
    int total = 0;
    int page = 0;
    const auto add = [&](const VEKPrtModel& iModel, int iPage, const std::string& iName,
                         const char* iRemark) {
        const int count = CountElements(PageAt(iModel, iPage));
        const std::filesystem::path path = std::filesystem::path(iDirectory) / (iName + ".svg");
        files.AddSvg(path, iModel, iPage);
        report << count << " elements  " << path.string() << iRemark << '\n';
        total += count;
    };
    for (const std::string& name : atlas.PageNames()) {
        add(atlas.Model(), ++page, name, "");
        if (page == kDuplicatedPage)
            add(*second, 1, name + "-duplicate", "  (a duplicate of the page above)");
    }
    std::error_code error;
    std::filesystem::create_directories(iDirectory, error);
    // Some libraries call it an error that the directory is there already under another spelling.
    if (!std::filesystem::is_directory(iDirectory))
        throw AtlasError("cannot make directory " + iDirectory + ": " + error.message());
    files.Commit();
    std::cout << report.str() << total << " elements in all\n" << std::flush;
    if (!std::cout) throw AtlasError("cannot write the list of pages");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: atlas INPUT.json OUTPUT_DIRECTORY\n";
        return 2;
    }
    try {
        Run(argv[1], argv[2]);
        return 0;
    } catch (const std::bad_alloc&) {
        std::cerr << "atlas: out of memory\n";
    } catch (const std::exception& error) {
        std::cerr << "atlas: " << error.what() << '\n';
    }
    return 1;
}
