// Plots the specimen sheet.
#include <cstring>
#include <exception>
#include <iostream>

#include "FileSet.h"
#include "Specimen.h"

int main(int argc, char** argv) {
    const bool help = argc == 2 && std::strcmp(argv[1], "--help") == 0;
    if (help || argc != 2 || argv[1][0] == '-') {
        (help ? std::cout : std::cerr)
            << "usage: specimen OUTPUT.svg\n"
               "Plots the specimen sheet.  A file, or the one that a link leads to, is replaced when the\n"
               "sheet is complete; a device such as /dev/stdout, or a pipe, is written to.\n";
        return help ? 0 : 2;
    }
    try {
        const Specimen specimen = BuildSpecimen();
        FileSet files;
        files.AddSvg(argv[1], *specimen.model, 1);
        files.Commit();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "specimen: " << error.what() << '\n';
        return 1;
    }
}
