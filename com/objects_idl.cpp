// tamrel_objects_idl: writes the type library source of TamrelObj26
// (com/TamrelObj26.idl) from the data objects' property tables, so that the
// type library and the server's interface tables come from one list.
//
//     tamrel_objects_idl > com/TamrelObj26.idl
//     tamrel_objects_idl --check com/TamrelObj26.idl    (exit 1 where it is not current)
//
// Identifiers not fixed by hand are name-based (RFC 4122 version 5, SHA-1)
// in the library's own namespace: the same name gives the same identifier
// in every build.
#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "com/object_classes.h"
#include "com/object_members.h"

namespace {

using namespace tamrel::com::members;

// SHA-1 (FIPS 180-4), for the name-based identifiers only.
std::array<std::uint8_t, 20> sha1(std::string_view text) {
    std::uint32_t h[5] = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    std::string m(text);
    const std::uint64_t bits = static_cast<std::uint64_t>(m.size()) * 8;
    m += '\x80';
    while (m.size() % 64 != 56) m += '\0';
    for (int i = 7; i >= 0; --i) m += static_cast<char>(bits >> (i * 8));
    auto rol = [](std::uint32_t x, int n) { return (x << n) | (x >> (32 - n)); };
    for (std::size_t block = 0; block < m.size(); block += 64) {
        std::uint32_t w[80];
        for (int i = 0; i < 16; ++i) {
            w[i] = 0;
            for (int b = 0; b < 4; ++b) w[i] = (w[i] << 8) | static_cast<std::uint8_t>(m[block + i * 4 + b]);
        }
        for (int i = 16; i < 80; ++i) w[i] = rol(w[i - 3] ^ w[i - 8] ^ w[i - 14] ^ w[i - 16], 1);
        std::uint32_t a = h[0], b = h[1], c = h[2], d = h[3], e = h[4];
        for (int i = 0; i < 80; ++i) {
            std::uint32_t f, k;
            if (i < 20)
                f = (b & c) | (~b & d), k = 0x5A827999;
            else if (i < 40)
                f = b ^ c ^ d, k = 0x6ED9EBA1;
            else if (i < 60)
                f = (b & c) | (b & d) | (c & d), k = 0x8F1BBCDC;
            else
                f = b ^ c ^ d, k = 0xCA62C1D6;
            const std::uint32_t t = rol(a, 5) + f + e + k + w[i];
            e = d, d = c, c = rol(b, 30), b = a, a = t;
        }
        h[0] += a, h[1] += b, h[2] += c, h[3] += d, h[4] += e;
    }
    std::array<std::uint8_t, 20> out{};
    for (int i = 0; i < 20; ++i) out[i] = static_cast<std::uint8_t>(h[i / 4] >> (24 - (i % 4) * 8));
    return out;
}

// The identifier of `name` in the library's namespace (the library's own
// identifier below).
std::string name_uuid(std::string_view name) {
    static const std::uint8_t space[16] = {0x5d, 0x1e, 0x3c, 0x2a, 0x77, 0x4b, 0x4f, 0x0e,
                                           0x9a, 0x61, 0x2f, 0x7c, 0x83, 0x0d, 0x52, 0xb4};
    auto d = sha1(std::string(reinterpret_cast<const char*>(space), 16) + std::string(name));
    d[6] = static_cast<std::uint8_t>((d[6] & 0x0F) | 0x50);
    d[8] = static_cast<std::uint8_t>((d[8] & 0x3F) | 0x80);
    char buf[40];
    std::snprintf(buf, sizeof buf, "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X", d[0], d[1],
                  d[2], d[3], d[4], d[5], d[6], d[7], d[8], d[9], d[10], d[11], d[12], d[13], d[14], d[15]);
    return buf;
}

struct Class {
    std::string name, clsid;
    std::vector<std::string> members;  // the interface's lines
};

std::string com_type(Type t, const std::vector<Class>& classes, const std::vector<const std::type_info*>& types,
                     const std::type_info* object) {
    switch (t) {
        case Type::Text:
            return "BSTR";
        case Type::Long:
            return "long";
        case Type::Integer:
            return "short";
        case Type::Boolean:
            return "VARIANT_BOOL";
        case Type::Object:
            for (std::size_t i = 0; i < types.size(); ++i)
                if (*types[i] == *object) return "_" + classes[i].name + "*";
            break;
        case Type::None:
            break;
    }
    return "void";
}

std::string member_line(const Member& m, const std::vector<Class>& classes,
                        const std::vector<const std::type_info*>& types) {
    std::string attrs = "id(" + std::to_string(m.id) + ")";
    if (m.role == Role::Get) attrs += ", propget";
    if (m.role == Role::Put) attrs += ", propput";
    if (m.role == Role::PutRef) attrs += ", propputref";
    std::vector<std::string> params;
    if (m.index == Index::Entry) params.push_back("[in] short index");
    if (m.index == Index::Item) params.push_back("[in] long index");
    const std::string type = com_type(m.type, classes, types, m.object);
    if (m.role == Role::Get || (m.role == Role::Method && m.type != Type::None))
        params.push_back("[out, retval] " + type + "* value");
    else if (m.role != Role::Method)
        params.push_back("[in] " + type + " value");
    std::string line = "[" + attrs + "] HRESULT " + m.name.text() + "(";
    for (std::size_t i = 0; i < params.size(); ++i) line += (i ? ", " : "") + params[i];
    return line + ");";
}

std::string objects_idl() {
    std::vector<Class> classes;
    std::vector<const std::type_info*> types;
    std::vector<std::vector<Member>> lists;
    each_class([&]<class T>(const std::string& name, const char* clsid) {
        classes.push_back({name, clsid ? clsid : name_uuid("TamrelObj26." + name), {}});
        types.push_back(&typeid(T));
        std::vector<Member> list;
        for (const Member& m : Members<T>::list.m) list.push_back(m);
        lists.push_back(std::move(list));
    });
    std::ostringstream o;
    o << "// The type library of TamrelObj26, the data objects: one class for each\n"
         "// data object of the procedures, the shared objects and the structures,\n"
         "// and one for each kind of sub-object and item they hold, each with its\n"
         "// dual interface. Written by tamrel_objects_idl from the property tables;\n"
         "// a test holds this file to them (docs/com.md).\n"
         "import \"oaidl.idl\";\n"
         "import \"ocidl.idl\";\n\n"
      << "[uuid(" << name_uuid("TamrelObj26") << "), version(1.0), helpstring(\"Tamrel Data Objects 26\")]\n"
      << "library TamrelObj26\n{\n    importlib(\"stdole2.tlb\");\n\n";
    for (const Class& c : classes) o << "    interface _" << c.name << ";\n";
    for (std::size_t i = 0; i < classes.size(); ++i) {
        const Class& c = classes[i];
        o << "\n    [odl, uuid(" << name_uuid("TamrelObj26._" + c.name)
          << "), version(1.0), hidden, dual, nonextensible, oleautomation]\n"
          << "    interface _" << c.name << " : IDispatch {\n";
        for (const Member& m : lists[i]) o << "        " << member_line(m, classes, types) << "\n";
        o << "    };\n\n"
          << "    [uuid(" << c.clsid << "), version(1.0)]\n"
          << "    coclass " << c.name << " {\n        [default] interface _" << c.name << ";\n    };\n";
    }
    o << "};\n";
    return o.str();
}

}  // namespace

int main(int argc, char** argv) {
    const std::string idl = objects_idl();
    if (argc == 3 && std::string_view(argv[1]) == "--check") {
        std::ifstream in(argv[2], std::ios::binary);
        const std::string have((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (have == idl) return 0;
        std::cerr << argv[2] << " is not current: write it again with tamrel_objects_idl > " << argv[2] << "\n";
        return 1;
    }
    if (argc != 1) {
        std::cerr << "usage: tamrel_objects_idl [--check FILE]\n";
        return 2;
    }
    std::cout << idl;
    return 0;
}
