// Writes one XML block element by element into its own buffer, appended to
// the output when the block closes. A nil-able block that ends with no data
// element holding a value is written as its nil element instead.
#pragma once
#include <string>
#include <string_view>

#include "core/joined.h"
#include "core/record_buffer.h"
#include "core/xml_encoders.h"
#include "xml/clsGenAsyl/SKEK_elements.h"

namespace tamrel {

class XmlBlock {
public:
    XmlBlock(std::string& out, std::string_view name, bool nilable) : out_(out), name_(name), nilable_(nilable) {
        buf_.put("<");
        buf_.put(name_);
        buf_.put(">");
    }
    XmlBlock& fixed(std::string_view element) {
        buf_.put(element);
        return *this;
    }
    XmlBlock& an(std::string_view name, std::string_view v) { return element(name, v, empty_); }
    XmlBlock& n(std::string_view name, std::string_view v) { return an(name, v); }
    XmlBlock& date(std::string_view name, std::string_view v) {
        char* d = buf_.room(mlGen::XMLRoom(name, v) + 8);
        buf_.advance(mlGen::PutDateXML(d, name, v, empty_));
        return *this;
    }
    // The elements of a table, from `obj`.
    template <class O, std::size_t N>
    XmlBlock& elements(const layouts::asyl::Element<O> (&table)[N], const O& obj) {
        for (const auto& e : table)
            e.kind == layouts::asyl::XmlKind::Date ? date(e.name, obj.*e.member) : an(e.name, obj.*e.member);
        return *this;
    }
    // An element that never decides whether the block is empty.
    XmlBlock& side(std::string_view name, std::string_view v) {
        bool scratch = true;
        return element(name, v, scratch);
    }
    void close() {
        if (nilable_ && empty_) {
            append_joined(out_, {"<", name_, " xsi:nil=\"true\"/>"});
            return;
        }
        buf_.put("</");
        buf_.put(name_);
        buf_.put(">");
        out_.append(buf_.view());
    }

private:
    XmlBlock& element(std::string_view name, std::string_view v, bool& flag) {
        char* d = buf_.room(mlGen::XMLRoom(name, v));
        buf_.advance(mlGen::PutAnXML(d, name, v, flag));
        return *this;
    }

    std::string& out_;
    std::string_view name_;
    bool nilable_;
    bool empty_ = true;
    RecordBuffer buf_;
};

}  // namespace tamrel
