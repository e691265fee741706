// Chooses colours that keep neighbouring countries apart.
#ifndef Colouring_H
#define Colouring_H

#include <cstddef>
#include <vector>

#include "TopoJson.h"

/// One of \p iColours, which is not 0, for each country: from 0, and other than the neighbours' as far as the
/// palette goes.  Each is used about as often.  Countries with many neighbours choose first.
std::vector<std::size_t> ColourCountries(const Topology& iTopology, std::size_t iColours);

#endif
