// Draws the specimen sheet.
#include <cstring>
#include <iostream>

#include "FileSet.h"
#include "Specimen.h"

int main(int argc, char** argv) {
    const bool isHelp = argc == 2 && std::strcmp(argv[1], "--help") == 0;
    if (isHelp || argc != 2 || argv[1][0] == '-') {
        (isHelp ? std::cout : std::cerr) << "usage: specimen OUTPUT\n"
                                            "Draws the specimen sheet as SVG, or by the ending of the file "
                                            "as .pdf, .png or .txt (a dump of\n"
                                            "the model).  A file, or the target of a link, is replaced when "
                                            "the sheet is complete; a device\n"
                                            "or a pipe is written to.\n";
        return isHelp ? 0 : 2;
    }
    try {
        const Specimen specimen = BuildSpecimen();
        FileSet files;
        files.Add(argv[1], *specimen.model, 1);
        files.Commit();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "specimen: " << error.what() << '\n';
        return 1;
    }
}
