#include "TopoJson.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "AtlasError.h"

namespace {

// Keeps the members in the order of the file, for "the first collection".
using Json = nlohmann::ordered_json;

/// Arcs may be used again and again, so that a small file can ask for rings without measure.
constexpr std::size_t kMostRingPoints = 5'000'000;

/// TopoJSON needs no more than ten levels.  Deep values are kept out because they are destroyed by recursion.
constexpr int kDeepestNesting = 64;

/// Null when \p iObject is no object or has no such member.
const Json* Find(const Json& iObject, const char* iName) {
    if (!iObject.is_object()) return nullptr;
    const auto member = iObject.find(iName);
    return member == iObject.end() ? nullptr : &*member;
}

const Json& ArrayMember(const Json& iObject, const char* iName) {
    const Json* const member = Find(iObject, iName);
    if (!member || !member->is_array())
        throw AtlasError(std::string("invalid TopoJSON: \"") + iName + "\" is missing or no array");
    return *member;
}

std::string TypeOf(const Json& iObject) {
    const Json* const type = Find(iObject, "type");
    return type && type->is_string() ? type->get<std::string>() : std::string();
}

Point PairOf(const Json& iPair, const char* iWhat) {
    if (!iPair.is_array() || iPair.size() < 2 || !iPair[0].is_number() || !iPair[1].is_number())
        throw AtlasError(std::string("invalid TopoJSON: ") + iWhat + " is no pair of numbers");
    return {iPair[0].get<double>(), iPair[1].get<double>()};
}

/// The empty string for a missing or null member; control characters, which no page can show, become blanks.
std::string TextOf(const Json* iValue, const char* iWhat) {
    if (!iValue || iValue->is_null()) return {};
    if (iValue->is_number_integer()) return iValue->dump();
    if (!iValue->is_string()) throw AtlasError(std::string("invalid TopoJSON: ") + iWhat + " is no text");
    std::string text = iValue->get<std::string>();
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return text;
}

class Reader {
public:
    explicit Reader(const Json& iRoot) : _root(iRoot) {}

    Topology Read() {
        if (TypeOf(_root) != "Topology") throw AtlasError("not TopoJSON: no object of type \"Topology\"");
        ReadArcs();
        const Json* const objects = Find(_root, "objects");
        if (!objects || !objects->is_object())
            throw AtlasError("invalid TopoJSON: \"objects\" is missing or no object");
        if (const Json* const countries = Find(*objects, "countries")) {
            if (TypeOf(*countries) != "GeometryCollection")
                throw AtlasError("invalid TopoJSON: \"countries\" is no GeometryCollection");
            ReadCountries(*countries);
        } else {
            for (const Json& object : *objects) {
                if (TypeOf(object) == "GeometryCollection") ReadCountries(object);
                if (!_topology.countries.empty()) break;
            }
        }
        if (_topology.countries.empty()) throw AtlasError("nothing to draw: no polygons in the file");
        return std::move(_topology);
    }

private:
    void ReadArcs() {
        const Json* const transform = Find(_root, "transform");
        Point scale{1.0, 1.0};
        Point translate;
        if (transform) {
            scale = PairOf(ArrayMember(*transform, "scale"), "the scale of the transform");
            translate = PairOf(ArrayMember(*transform, "translate"), "the translation of the transform");
        }
        for (const Json& positions : ArrayMember(_root, "arcs")) {
            if (!positions.is_array()) throw AtlasError("invalid TopoJSON: an arc is no array");
            Arc arc;
            arc.path.reserve(positions.size());
            Point sum;
            for (const Json& position : positions) {
                const Point pair = PairOf(position, "a position");
                // Quantised positions are differences to the one before.
                sum = transform ? Point{sum.x + pair.x, sum.y + pair.y} : pair;
                arc.path.push_back(
                    CheckedPosition({sum.x * scale.x + translate.x, sum.y * scale.y + translate.y}));
            }
            _topology.arcs.push_back(std::move(arc));
        }
    }

    /// Quantisation may put the poles a trifle too far out.  Anything else beyond the globe, not-a-number
    /// included, fails the comparison.
    static Point CheckedPosition(const Point& iPosition) {
        if (!(std::abs(iPosition.x) <= 360.0 && std::abs(iPosition.y) <= 90.01))
            throw AtlasError("invalid TopoJSON: a position is no longitude and latitude in degrees");
        return {iPosition.x, std::clamp(iPosition.y, -90.0, 90.0)};
    }

    void ReadCountries(const Json& iCollection) {
        for (const Json& geometry : ArrayMember(iCollection, "geometries")) {
            if (geometry.is_null()) continue;
            if (!geometry.is_object()) throw AtlasError("invalid TopoJSON: a geometry is no object");
            const std::string type = TypeOf(geometry);
            if (type.empty() && !geometry.contains("type"))
                throw AtlasError("invalid TopoJSON: a geometry has no type");
            if (type != "Polygon" && type != "MultiPolygon") {
                CheckOtherType(geometry, type);
                continue;
            }
            Country country;
            country.id = TextOf(Find(geometry, "id"), "an id");
            if (const Json* const properties = Find(geometry, "properties"))
                country.name = TextOf(Find(*properties, "name"), "a name");
            const Json& arcs = ArrayMember(geometry, "arcs");
            if (type == "Polygon") {
                AddPolygon(arcs, country);
            } else {
                for (const Json& polygon : arcs)
                    AddPolygon(polygon, country);
            }
            if (!country.polygons.empty()) _topology.countries.push_back(std::move(country));
        }
    }

    static void CheckOtherType(const Json& iGeometry, const std::string& iType) {
        static const char* const kOthers[] = {"Point", "MultiPoint", "LineString", "MultiLineString",
                                              "GeometryCollection"};
        const bool known = std::find(std::begin(kOthers), std::end(kOthers), iType) != std::end(kOthers);
        if (!known && !iGeometry.at("type").is_null())
            throw AtlasError("invalid TopoJSON: a geometry of unknown type");
    }

    void AddPolygon(const Json& iPolygon, Country& ioCountry) {
        if (!iPolygon.is_array()) throw AtlasError("invalid TopoJSON: a polygon is no array of rings");
        std::vector<Path> rings;
        for (const Json& ring : iPolygon) {
            Path path = RingOf(ring);
            // Without its outline a polygon is nothing; its holes would turn into land.
            if (path.size() < 3 && rings.empty()) return;
            if (path.size() >= 3) rings.push_back(std::move(path));
        }
        if (!rings.empty()) ioCountry.polygons.push_back(std::move(rings));
    }

    Path RingOf(const Json& iArcs) {
        if (!iArcs.is_array()) throw AtlasError("invalid TopoJSON: a ring is no array of arc indices");
        Path ring;
        for (const Json& index : iArcs) {
            bool reversed = false;
            Arc& arc = _topology.arcs[ArcAt(index, reversed)];
            // The country under way will stand at the end of the list.
            const std::size_t user = _topology.countries.size();
            if (arc.users.empty() || arc.users.back() != user) arc.users.push_back(user);
            _ringPoints += arc.path.size();
            if (_ringPoints > kMostRingPoints) throw AtlasError("the rings have too many points");
            Path path = arc.path;
            if (reversed) std::reverse(path.begin(), path.end());
            // Each arc begins where the one before it ends.
            const bool joined = !ring.empty() && !path.empty() && ring.back() == path.front();
            ring.insert(ring.end(), path.begin() + (joined ? 1 : 0), path.end());
        }
        if (ring.size() > 1 && ring.front() == ring.back()) ring.pop_back();
        return ring;
    }

    std::size_t ArcAt(const Json& iIndex, bool& oReversed) const {
        if (!iIndex.is_number_integer()) throw AtlasError("invalid TopoJSON: an arc index is no integer");
        // A number beyond the signed range would wrap to a negative one, and so to some other arc.
        const bool huge = iIndex.is_number_unsigned() && iIndex.get<std::uint64_t>() >= _topology.arcs.size();
        const auto index = iIndex.get<std::int64_t>();
        oReversed = index < 0;
        const auto position = static_cast<std::uint64_t>(oReversed ? ~index : index);
        if (huge || position >= _topology.arcs.size())
            throw AtlasError("invalid TopoJSON: arc index " + iIndex.dump() + " is out of range");
        return static_cast<std::size_t>(position);
    }

    const Json& _root;
    Topology _topology;
    std::size_t _ringPoints = 0;
};

} // namespace

Topology ReadTopology(const std::string& iText) {
    if (iText.empty()) throw AtlasError("the file is empty");
    bool tooDeep = false;
    const auto isShallow = [&tooDeep](int iDepth, Json::parse_event_t, const Json&) {
        if (iDepth > kDeepestNesting) tooDeep = true;
        return !tooDeep;
    };
    const Json root = Json::parse(iText, isShallow, false);
    if (tooDeep) throw AtlasError("not TopoJSON: nested too deeply");
    if (root.is_discarded()) throw AtlasError("not valid JSON");
    return Reader(root).Read();
}
