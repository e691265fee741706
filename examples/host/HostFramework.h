// A host's framework, as different from the reference implementation as the library allows:
// other layouts, UTF-16 strings, collections on std::vector, atomic counts, memory of its own, other names of
// enumerators, points that start out undefined, and a root without a meta-object.
//
// The library is compiled against it under the names of the headers that it includes, each of which includes
// this one (see CMakeLists.txt).
#ifndef HostFramework_H
#define HostFramework_H

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <vector>

class VEKMetaClass {
public:
    VEKMetaClass(std::string iName, VEKMetaClass* iBase, long iSize)
        : _name(std::move(iName)), _base(iBase), _size(iSize) {}
    const char* GetName() const { return _name.c_str(); }
    const char* GetId() const { return _id.c_str(); }
    VEKMetaClass* GetBase() const { return _base; }
    long GetSize() const { return _size; }
    int IsAKindOf(const char* iClassName) const {
        return iClassName && (_name == iClassName || (_base && _base->IsAKindOf(iClassName))) ? 1 : 0;
    }

private:
    std::string _name;
    std::string _id = "PrintBase." + _name;
    VEKMetaClass* _base;
    long _size;
};

enum class ENUMTypeOfClass : int { Abstract, Concrete };

VEKMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iType, VEKMetaClass* iBase,
                                     const char* iLateType, const char* iComponent, long iSize);

class VEKBaseUnknown {
public:
    VEKBaseUnknown() { ++s_live; }
    VEKBaseUnknown(const VEKBaseUnknown&) = delete;
    VEKBaseUnknown& operator=(const VEKBaseUnknown& iOther) {
        _impl = iOther._impl;
        return *this;
    }
    virtual ~VEKBaseUnknown() { --s_live; }

    static void* operator new(std::size_t iSize) noexcept;
    static void* operator new(std::size_t, void* iPlace) noexcept { return iPlace; }
    static void operator delete(void* iObject) noexcept;
    static void operator delete(void*, void*) noexcept {}

    virtual VEKMetaClass* GetMetaObject() const { return nullptr; }
    virtual const char* IsA() const { return nullptr; }
    virtual int IsAKindOf(const char*) const { return 0; }
    virtual unsigned long AddRef() { return ++_references; }
    virtual unsigned long Release() {
        const unsigned long left = --_references;
        if (left == 0) delete this;
        return left;
    }
    static VEKMetaClass* MetaObject() { return nullptr; }

    // Not asked for by the library; its tests look at them.
    virtual void* GetImpl() const { return _impl; }
    virtual void SetImpl(void* iImpl) { _impl = iImpl; }
    static long CountLiveObjects() { return s_live; }

protected:
    char _padding[24] = {}; // Another size than the reference framework gives it.

private:
    static std::atomic<long> s_live;
    std::atomic<unsigned long> _references{1};
    void* _impl = nullptr;
};

class VEKRawCollPV {
public:
    explicit VEKRawCollPV(int) {}
    VEKRawCollPV(const VEKRawCollPV&) = default;
    // Not to be assigned to itself.
    VEKRawCollPV& operator=(const VEKRawCollPV& iOther) {
        _pointers.clear();
        _pointers = iOther._pointers;
        return *this;
    }
    int Size() const { return static_cast<int>(_pointers.size()); }
    void Append(void* iPointer) {
        try {
            if (_pointers.size() == _pointers.capacity())
                _pointers.reserve(_pointers.empty() ? 4 : 2 * _pointers.size());
            _pointers.push_back(iPointer);
        } catch (const std::bad_alloc&) {
            // dropped
        }
    }
    int Locate(const void* iPointer, int iFrom) const {
        for (int position = iFrom; position <= Size(); ++position)
            if ((*this)[position] == iPointer) return position;
        return 0;
    }
    void RemovePosition(int iPosition) { _pointers.erase(_pointers.begin() + (iPosition - 1)); }
    void* operator[](int iPosition) const {
        return iPosition > 0 && iPosition <= Size() ? _pointers[static_cast<std::size_t>(iPosition) - 1]
                                                    : nullptr;
    }

private:
    std::vector<void*> _pointers;
};

// 16-bit units behind their number, in one block.
class VEKUnicodeString {
public:
    VEKUnicodeString() = default;
    VEKUnicodeString(const char* iText) { *this = iText; }
    VEKUnicodeString(const VEKUnicodeString& iOther) { *this = iOther; }
    // Not to be assigned to itself.
    VEKUnicodeString& operator=(const VEKUnicodeString& iOther) {
        Assign(iOther._units ? iOther._units + 1 : nullptr, iOther.Length());
        return *this;
    }
    VEKUnicodeString& operator=(const char* iText) {
        Assign(reinterpret_cast<const unsigned char*>(iText), iText ? std::strlen(iText) : 0);
        return *this;
    }
    ~VEKUnicodeString() { delete[] _units; }

    // For the tests and the conveniences; the library itself never reads a string.
    bool operator==(const VEKUnicodeString& iOther) const {
        return std::strcmp(ToUtf8(), iOther.ToUtf8()) == 0;
    }
    bool IsEmpty() const { return Length() == 0; }
    const char* ToUtf8() const {
        _utf8.clear();
        for (std::size_t i = 1; i <= Length(); ++i)
            _utf8 += static_cast<char>(_units[i]);
        return _utf8.c_str();
    }

private:
    std::size_t Length() const { return _units ? _units[0] : 0; }
    // Keeps its value when allocation fails.
    template <class Unit>
    void Assign(const Unit* iUnits, std::size_t iLength) {
        char16_t* const units = iLength > 0 ? new (std::nothrow) char16_t[iLength + 1] : nullptr;
        if (iLength > 0 && !units) return;
        delete[] _units;
        _units = units;
        if (!units) return;
        units[0] = static_cast<char16_t>(iLength);
        std::copy_n(iUnits, iLength, units + 1);
    }

    char16_t* _units = nullptr;
    mutable std::string _utf8;
};

// Two numbers, and none at all until they are set.
template <class Tag>
class HostPair {
public:
    HostPair() = default;
    HostPair(double iX, double iY) : _x(iX), _y(iY) {}
    double GetX() const { return _x; }
    double GetY() const { return _y; }
    bool operator==(const HostPair& iOther) const { return _x == iOther._x && _y == iOther._y; }

private:
    double _x = std::numeric_limits<double>::quiet_NaN();
    double _y = std::numeric_limits<double>::quiet_NaN();
};
using VEKMathPoint2D = HostPair<struct HostPoint>;
using VEKMathVector2D = HostPair<struct HostVector>;

class VEKMath2x2Matrix {
public:
    VEKMath2x2Matrix() : VEKMath2x2Matrix(7, 7, 7, 7) {}
    VEKMath2x2Matrix(double iA, double iB, double iC, double iD) : _values{iA, iB, iC, iD} {}
    double GetCoef(int iRow, int iColumn) const {
        return _values[static_cast<std::size_t>(2 * iRow + iColumn - 3)];
    }
    bool operator==(const VEKMath2x2Matrix& iOther) const { return _values == iOther._values; }

private:
    std::array<double, 4> _values;
};

class VEKListPtrVEKMathPoint2D : public VEKRawCollPV {
public:
    using VEKRawCollPV::VEKRawCollPV;
};

class VEKPixelImage : public VEKBaseUnknown {
public:
    VEKPixelImage(int iWidth, int iHeight) : _width(iWidth), _height(iHeight) {}
    ~VEKPixelImage() override { delete[] _pixels; }
    virtual VEKPixelImage* Clone() const {
        auto* const copy = new VEKPixelImage(_width, _height);
        if (!copy || copy->_pixels) return copy;
        copy->Release();
        return nullptr;
    }
    int GetWidth() const { return _width; }

private:
    int _width, _height;
    char* _pixels =
        new (std::nothrow) char[static_cast<std::size_t>(_width) * static_cast<std::size_t>(_height)];
};

class VEKFont {
public:
    explicit VEKFont(const char* iFamily) : _family(iFamily) {}
    const char* GetFamily() const { return _family; }

private:
    const char* _family;
};

class VEKPrintLinkURI {
public:
    VEKPrintLinkURI(const char* iURI = "") : _uri(iURI) {}
    const char* GetURI() const { return _uri.ToUtf8(); }
    bool operator==(const VEKPrintLinkURI& iOther) const { return _uri == iOther._uri; }

private:
    VEKUnicodeString _uri;
};

enum VEKPrintLineAttribute : int {};
enum VEKPrintMarkerAttribute : int {};
enum VEKPrintTextAttribute : int {};
enum VEKPrintTransformType : int {};

#endif
