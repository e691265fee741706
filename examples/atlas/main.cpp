// Draws an atlas from country outlines, as SVG files, a PDF document or a PNG image.
#include <cerrno>
#include <fstream>
#include <iostream>

#include <CLI/CLI.hpp>

#include "AtlasModel.h"
#include "FileSet.h"
#include "VEKPrtChildren.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t maxMebibytes = 8;

std::string ReadFile(const fs::path& iPath) {
    std::string content(maxMebibytes << 20, '\0');
    std::ifstream stream(iPath, std::ios::binary);
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    if (!stream.is_open() || stream.bad())
        throw std::runtime_error(iPath.string() + ": " + std::generic_category().message(errno));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    if (!stream.eof()) throw std::runtime_error(iPath.string() + " is too large");
    return content;
}

void Run(const fs::path& iInput, const fs::path& iOutput, const std::string& iLevel,
         const std::string& iCredit) {
    const Topology topology = ReadTopology(ReadFile(iInput), iLevel);
    const std::string name = iInput.filename().string();
    const Atlas atlas(topology, name.substr(0, name.find('.', 1)), iCredit, iOutput.extension() == ".pdf");
    FileSet files;
    int number = 0;
    for (const VEKPrtImageElt& page : vekprt::ChildrenOf(atlas.Model())) {
        VEKUnicodeString id;
        page.GetID(id);
        const fs::path path =
            iOutput.has_extension() ? iOutput : iOutput / (id.ToUtf8() + std::string(".svg"));
        if (++number == 1 || path != iOutput) files.Add(path, atlas.Model(), number);
    }
    if (!iOutput.has_extension()) MakeDirectory(iOutput);
    files.Commit();
    std::cout << topology.countries.size() << " areas from " << topology.levels << '\n' << std::flush;
    if (!std::cout) throw std::runtime_error("cannot write to the standard output");
}

} // namespace

int main(int argc, char** argv) {
    try {
        CLI::App options("Draws an atlas, or a map of countries that lie close together, from TopoJSON.\n");
        std::string input, output, level, credit;
        options.add_option("INPUT", input, "the outlines, at most 8 MiB")->required();
        const char* const outputs =
            "x.pdf for all pages, x.svg or x.png for the first one, or a directory, made\n"
            "if missing, for one SVG file per page";
        options.add_option("OUTPUT", output, outputs)->required();
        options.add_option("--level", level, "the object to draw, such as \"countries\" or \"states\"");
        options.add_option("--credit", credit, "the source of the data, for the foot of each page");
        CLI11_PARSE(options, argc, argv);
        Run(input, output, level, credit);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "atlas: " << error.what() << '\n';
        return 1;
    }
}
