#include "TopoJson.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json; // objects are searched in file order

// Arcs may be used again and again; the most detailed real data has half a million positions.
constexpr std::size_t maxRingPositions = 2'000'000;
constexpr int maxDepth = 16;

// Null when iObject is no object or has no such member.
const Json* Find(const Json& iObject, const char* iName) {
    if (!iObject.is_object()) return nullptr;
    const auto member = iObject.find(iName);
    return member == iObject.end() ? nullptr : &*member;
}

// Numbers are accepted as text.
std::string TextOf(const Json* iValue) {
    if (iValue && iValue->is_number()) return iValue->dump();
    return iValue && iValue->is_string() ? iValue->get<std::string>() : "";
}

// On one line and not too long for a message.
std::string Quoted(const std::string& iText) {
    const std::string text = Json(iText).dump(-1, ' ', true);
    return text.size() <= 40 ? text : text.substr(0, 36) + "...\"";
}

bool IsSame(const Position& iA, const Position& iB) { return iA.x == iB.x && iA.y == iB.y; }

// Positions, arrays and members of the wrong type throw a Json::exception.
class Reader {
public:
    explicit Reader(const Json& iRoot) : _root(iRoot) {}

    Topology Read(const std::string& iLevel) {
        if (TextOf(Find(_root, "type")) != "Topology")
            throw std::runtime_error("not TopoJSON: no object of type \"Topology\"");
        try {
            ReadArcs();
            ReadObjects(iLevel);
        } catch (const Json::exception& error) {
            const std::string reason = error.what();
            Fail(reason.substr(reason.find(' ') + 1)); // without the number of the error
        }
        return std::move(_topology);
    }

private:
    [[noreturn]] void Fail(const std::string& iWhat) const {
        throw std::runtime_error("invalid TopoJSON: " + (_place.empty() ? "" : _place + ": ") + iWhat);
    }

    static Position PairOf(const Json& iXY) { return {iXY.at(0).get<double>(), iXY.at(1).get<double>()}; }

    void ReadArcs() {
        const Json* const transform = Find(_root, "transform");
        const bool isQuantised = transform && !transform->is_null();
        const Position scale = isQuantised ? PairOf(transform->at("scale")) : Position{1.0, 1.0};
        const Position translate = isQuantised ? PairOf(transform->at("translate")) : Position{};
        for (const Json& positions : _root.at("arcs")) {
            _place = "/arcs/" + std::to_string(_topology.arcs.size());
            Arc arc;
            Position sum;
            for (const Json& position : positions) {
                const Position pair = PairOf(position);
                // Quantised positions are differences from the one before.
                sum = isQuantised ? Position{sum.x + pair.x, sum.y + pair.y} : pair;
                const Position place{sum.x * scale.x + translate.x, sum.y * scale.y + translate.y};
                // Quantisation may put the poles slightly out of range.
                if (!(std::abs(place.x) <= 360.0 && std::abs(place.y) <= 90.01))
                    Fail("a position is not longitude and latitude in degrees: projected data");
                arc.path.push_back({place.x, std::clamp(place.y, -90.0, 90.0)});
            }
            _topology.arcs.push_back(std::move(arc));
        }
        _place.clear();
    }

    void ReadObjects(const std::string& iLevel) {
        const Json& objects = _root.at("objects");
        std::vector<std::string> levels;
        std::string list;
        for (const auto& object : objects.items()) {
            levels.push_back(object.key());
            list += ' ' + Quoted(object.key());
        }
        const auto asked = std::find(levels.begin(), levels.end(), iLevel.empty() ? "countries" : iLevel);
        if (!iLevel.empty() && asked == levels.end())
            throw std::runtime_error("no object " + Quoted(iLevel) + "; the file has" + list);
        if (asked != levels.end()) std::rotate(levels.begin(), asked, asked + 1);
        if (!iLevel.empty()) levels.resize(1);
        for (const std::string& level : levels) {
            if (!_topology.countries.empty()) break;
            ReadGeometry(objects.at(level), "/objects/" + Quoted(level));
            _topology.levels = "object " + Quoted(level) + "; the file has" + list;
        }
        if (_topology.countries.empty()) throw std::runtime_error("nothing to draw: no polygons in the file");
    }

    void ReadGeometry(const Json& iGeometry, const std::string& iPlace, int iDepth = 0) {
        _place = iPlace;
        if (iGeometry.is_null() || iGeometry.at("type").is_null()) return;
        const std::string type = iGeometry.at("type").get<std::string>();
        if (type == "GeometryCollection") {
            if (iDepth == maxDepth) Fail("the collection is nested too deeply");
            int position = 0;
            for (const Json& member : iGeometry.at("geometries"))
                ReadGeometry(member, iPlace + "/geometries/" + std::to_string(position++), iDepth + 1);
        } else if (type == "Polygon" || type == "MultiPolygon") {
            ReadCountry(iGeometry, type == "Polygon");
        }
    }

    void ReadCountry(const Json& iGeometry, bool iIsPolygon) {
        Country country;
        country.id = TextOf(Find(iGeometry, "id"));
        if (const Json* const properties = Find(iGeometry, "properties"))
            country.name = TextOf(Find(*properties, "name"));
        const Json& arcs = iGeometry.at("arcs");
        for (const Json& polygon : iIsPolygon ? Json::array({arcs}) : arcs)
            AddPolygon(polygon, country);
        if (!country.polygons.empty()) _topology.countries.push_back(std::move(country));
    }

    void AddPolygon(const Json& iPolygon, Country& ioCountry) {
        std::vector<Path> rings;
        for (const Json& ring : iPolygon) {
            Path path = RingOf(ring);
            // Without its outline a polygon is empty; its holes would turn into land.
            if (path.size() < 3 && rings.empty()) return;
            if (path.size() < 3) continue;
            rings.push_back(std::move(path));
            // The country will be appended to the list.
            const std::size_t user = _topology.countries.size();
            for (const Json& index : ring) {
                std::vector<std::size_t>& users = ArcAt(index).users;
                if (users.empty() || users.back() != user) users.push_back(user);
            }
        }
        if (!rings.empty()) ioCountry.polygons.push_back(std::move(rings));
    }

    Path RingOf(const Json& iArcs) {
        Path ring;
        for (const Json& index : iArcs) {
            Path path = ArcAt(index).path;
            _allowance.Spend(path.size() + 1);
            if (index.get<std::int64_t>() < 0) std::reverse(path.begin(), path.end());
            // Each arc begins where the one before it ends.
            if (!ring.empty() && !path.empty() && IsSame(ring.back(), path.front())) ring.pop_back();
            ring.insert(ring.end(), path.begin(), path.end());
        }
        if (ring.size() > 1 && IsSame(ring.front(), ring.back())) ring.pop_back();
        return ring;
    }

    // A negative index is that of a reversed arc: -1 of the first.
    Arc& ArcAt(const Json& iIndex) {
        if (!iIndex.is_number_integer()) Fail("an arc index is not an integer");
        // An unsigned number beyond the signed range would wrap to a negative one.
        const bool isHuge = iIndex.is_number_unsigned() && iIndex.get<std::uint64_t>() > INT64_MAX;
        const auto index = isHuge ? INT64_MAX : iIndex.get<std::int64_t>();
        const auto position = static_cast<std::uint64_t>(index < 0 ? ~index : index);
        if (position >= _topology.arcs.size()) Fail("arc index " + iIndex.dump() + " is out of range");
        return _topology.arcs[position];
    }

    const Json& _root;
    std::string _place; // of what is being read, for messages
    Topology _topology;
    Allowance _allowance{maxRingPositions};
};

} // namespace

Topology ReadTopology(const std::string& iText, const std::string& iLevel) {
    if (iText.empty()) throw std::runtime_error("the file is empty");
    try {
        return Reader(Json::parse(iText)).Read(iLevel);
    } catch (const Json::parse_error& error) {
        throw std::runtime_error("not valid JSON: error at byte " + std::to_string(error.byte));
    } catch (const Json::out_of_range&) {
        throw std::runtime_error("not valid JSON: a number is out of range");
    }
}
