// Plots the specimen sheet: specimen OUTPUT.svg
#include <exception>
#include <filesystem>
#include <iostream>
#include <sstream>

#include "FileSet.h"
#include "Specimen.h"
#include "SvgWriter.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: specimen OUTPUT.svg\n";
        return 2;
    }
    try {
        const Specimen specimen = BuildSpecimen();
        std::ostringstream svg;
        WriteSvg(*specimen.model, 1, svg);
        const std::filesystem::path output = std::filesystem::absolute(argv[1]);
        FileSet files(output.parent_path());
        files.Add(output.filename().string(), svg.str());
        files.Commit();
        std::cout << "specimen: " << argv[1] << '\n';
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "specimen: " << error.what() << '\n';
        return 1;
    }
}
