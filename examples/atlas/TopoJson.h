// Reads countries and the arcs that they share from TopoJSON.
#ifndef TopoJson_H
#define TopoJson_H

#include <cstddef>
#include <string>
#include <vector>

#include "Map.h"

struct Country {
    std::string id;   // empty when the file gives none
    std::string name; // empty when the file gives none
    /// Each polygon is an outline followed by its holes.
    std::vector<std::vector<Path>> polygons;
};

struct Arc {
    Path path;
    /// Positions in Topology::countries, ascending: one makes the arc a coast, more make it a border.
    std::vector<std::size_t> users;
};

struct Topology {
    std::vector<Arc> arcs;
    std::vector<Country> countries;
    std::string levels; // which object was read and which there are, as a line for the user
};

/// Reads the object \p iLevel; when that is empty, "countries", or else the first object in file order that
/// has polygons.
///
/// Throws std::runtime_error, whose message says what is wrong with \p iText and where.  Null geometries,
/// points and lines are left out, and so are rings of fewer than three positions, which generalised data
/// contains.  A name or identifier that is neither text nor a number counts as none.
Topology ReadTopology(const std::string& iText, const std::string& iLevel = {});

#endif
