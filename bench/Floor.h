// The floor: plain structs in the layout of the model's objects, one malloc for an element and one for each
// array.
#ifndef Floor_H
#define Floor_H

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace plain {

enum Kind : std::uint64_t { line, rectangle, polyline, text };

struct Base {
    Kind kind; // where objects have the pointer to their virtual table
    std::uint64_t references;
    void* words[3];
    char* strings[3];
};

struct Stroke {
    void* table;
    unsigned colour;
    unsigned char transparency;
    int type;
    float* pattern;
    unsigned char patternLength;
    double width;
    int style, cap, join;
};

struct Fill {
    void* table;
    int style, rule;
    unsigned colour;
    unsigned char transparency;
    void* image;
    double first[2], second[2], reference[2];
};

struct Array {
    void* values;
    unsigned count;
};

struct Transform {
    void* table;
    Array kinds, matrices, scalesX, scalesY, rotations, skewsX, skewsY, translations;
};

struct Line : Base {
    double points[4];
    Stroke stroke;
    Transform transform;
};
struct Rectangle : Base {
    double points[4];
    int drawStyle;
    Stroke stroke;
    Fill fill;
    Transform transform;
};
struct Polyline : Base {
    double* points;
    int count;
    Stroke stroke;
    Transform transform;
};
struct TextRecord {
    void* table;
    void* font;
    int weight;
    double height;
    int anchor;
    float slant, direction;
    double spacing, expansion;
    int mode;
};
struct Text : Base {
    double position[2];
    char* text;
    int drawStyle;
    Stroke stroke;
    Fill fill;
    TextRecord record;
    Transform transform;
};

struct Group : Base {
    Base** children;
    int count, capacity;
    Transform transform;
};

struct Page : Base {
    Group** groups;
    int count, capacity;
    unsigned char* colours[3];
};

/// A block with a copy of what iSource points to.
template <class T>
T* NewCopy(const T* iSource, std::size_t iBytes = sizeof(T)) {
    void* const block = std::malloc(iBytes);
    std::memcpy(block, iSource, iBytes);
    return static_cast<T*>(block);
}

template <class Owner, class Member>
void Append(Owner& ioOwner, Member**& ioMembers, Member* iMember) {
    if (ioOwner.count == ioOwner.capacity) {
        ioOwner.capacity = ioOwner.capacity ? 2 * ioOwner.capacity : 4;
        ioMembers = static_cast<Member**>(
            std::realloc(ioMembers, static_cast<std::size_t>(ioOwner.capacity) * sizeof(Member*)));
    }
    ioMembers[ioOwner.count++] = iMember;
}

} // namespace plain

#endif
