// Draws an atlas from country outlines: one SVG file per page.
#include <cerrno>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

#include "AtlasModel.h"
#include "FileSet.h"
#include "TopoJson.h"
#include "VEKPrtWalk.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t mostMebibytes = 8;

std::string ReadFile(const fs::path& iPath) {
    std::string content((mostMebibytes << 20) + 1, '\0');
    std::ifstream stream(iPath, std::ios::binary);
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    if (!stream.is_open() || stream.bad())
        throw std::runtime_error(iPath.string() + ": " + std::generic_category().message(errno));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    if (content.size() > mostMebibytes << 20)
        throw std::runtime_error(iPath.string() + ": larger than " + std::to_string(mostMebibytes) + " MiB");
    return content;
}

void Run(const fs::path& iInput, const fs::path& iDirectory, const std::string& iCredit) {
    const Topology topology = ReadTopology(ReadFile(iInput));
    const Atlas atlas(topology, iInput.stem().string(), iCredit);
    FileSet files;
    std::ostringstream report;
    int total = 0;
    const auto add = [&](const VEKPrtModel& iModel, int iPage, VEKPrtImageElt& ioPage,
                         const std::string& iName) {
        int count = 0;
        vekprt::Walk(ioPage, [&](VEKPrtGraphicPrimitiveElt&, int) { return ++count > 0; });
        const fs::path path = iDirectory / (iName + ".svg");
        files.AddSvg(path, iModel, iPage);
        report << count << " elements  " << path.string() << '\n';
        total += count;
    };
    int number = 0;
    for (VEKPrtImageElt& page : vekprt::ChildrenOf(atlas.Model())) {
        VEKUnicodeString name;
        page.GetID(name);
        add(atlas.Model(), ++number, page, name.ToUtf8());
        if (number > 1) continue;
        // The first page is written again from a duplicate, which shares nothing with it but its fonts.
        VEKPrtGraphicPrimitiveElt* copy = nullptr;
        page.Duplicate(copy);
        const auto duplicate = vekprt::VEKRef<VEKPrtImageElt>::Adopt(static_cast<VEKPrtImageElt*>(copy));
        if (!duplicate) throw std::bad_alloc();
        const auto model = vekprt::Make<VEKPrtModel>();
        model->AddImage(duplicate.Get());
        add(*model, 1, *duplicate, name.ToUtf8() + std::string("-duplicate"));
    }
    std::error_code error;
    fs::create_directories(iDirectory, error);
    // Some libraries call it an error that the directory is there already under another spelling.
    if (!fs::is_directory(iDirectory))
        throw std::runtime_error("cannot make directory " + iDirectory.string() + ": " + error.message());
    files.Commit();
    std::cout << report.str() << total << " elements in all\n" << std::flush;
    if (!std::cout) throw std::runtime_error("cannot write the list of pages");
}

} // namespace

int main(int argc, char** argv) {
    try {
        CLI::App options(
            "Draws an atlas from country outlines in TopoJSON: one SVG file per page.  Countries that\n"
            "lie close together share one page, map.svg.\n");
        std::string input, directory, credit;
        options.add_option("INPUT", input, "the outlines, at most 8 MiB")->required();
        options.add_option("DIRECTORY", directory, "where the pages are written; made if it is missing")
            ->required();
        options.add_option("--credit", credit, "whose data it is: a text for the foot of each page");
        try {
            options.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return options.exit(error) == 0 ? 0 : 2;
        }
        Run(input, directory, credit);
        return 0;
    } catch (const std::bad_alloc&) {
        std::cerr << "atlas: out of memory\n";
    } catch (const std::exception& error) {
        std::cerr << "atlas: " << error.what() << '\n';
    }
    return 1;
}
