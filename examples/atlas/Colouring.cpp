#include "Colouring.h"

#include <algorithm>
#include <set>
#include <utility>

std::vector<std::size_t> ColourCountries(const Topology& iTopology, std::size_t iColours) {
    std::vector<std::set<std::size_t>> neighbours(iTopology.countries.size());
    for (const Arc& arc : iTopology.arcs) {
        // Where, in odd places, more than two meet, each is told of the next only.
        for (std::size_t i = 0; i + 1 < arc.users.size(); ++i) {
            neighbours[arc.users[i]].insert(arc.users[i + 1]);
            neighbours[arc.users[i + 1]].insert(arc.users[i]);
        }
    }
    std::vector<std::size_t> order(iTopology.countries.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](std::size_t iLeft, std::size_t iRight) {
        return neighbours[iLeft].size() > neighbours[iRight].size();
    });

    std::vector<std::size_t> colours(order.size(), iColours);
    std::vector<std::size_t> used(iColours);
    for (const std::size_t country : order) {
        std::vector<std::size_t> clashes(iColours);
        for (const std::size_t neighbour : neighbours[country])
            if (colours[neighbour] < iColours) ++clashes[colours[neighbour]];
        std::size_t best = 0;
        for (std::size_t colour = 1; colour < iColours; ++colour) {
            if (std::pair(clashes[colour], used[colour]) < std::pair(clashes[best], used[best]))
                best = colour;
        }
        colours[country] = best;
        ++used[best];
    }
    return colours;
}
