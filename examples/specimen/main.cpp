// Plots the specimen sheet: specimen OUTPUT.svg
#include <fstream>
#include <iostream>

#include "Specimen.h"
#include "SvgWriter.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: specimen OUTPUT.svg\n";
        return 2;
    }
    const Specimen specimen = BuildSpecimen();
    std::ofstream file(argv[1]);
    if (!file || !WriteSvg(*specimen.model, 1, file) || !file.flush()) {
        std::cerr << "specimen: cannot write " << argv[1] << '\n';
        return 1;
    }
    std::cout << "specimen: " << argv[1] << '\n';
    return 0;
}
