// Writes one XML block element by element. A nil-able block that ends with
// no data element holding a value is replaced by its nil element.
#pragma once
#include <string>
#include <string_view>

#include "core/xml_encoders.h"

namespace tamrel {

class XmlBlock {
public:
    XmlBlock(std::string& out, std::string_view name, bool nilable)
        : out_(out), name_(name), nilable_(nilable), start_(out.size()) {
        out_ += '<';
        out_ += name_;
        out_ += '>';
    }
    XmlBlock& fixed(std::string_view element) { out_ += element; return *this; }
    XmlBlock& an(std::string_view name, std::string_view v) { mlGen::AppendAnXML(out_, name, v, empty_); return *this; }
    XmlBlock& n(std::string_view name, std::string_view v) { return an(name, v); }
    XmlBlock& date(std::string_view name, std::string_view v) { mlGen::AppendDateXML(out_, name, v, empty_); return *this; }
    // An element that never decides whether the block is empty.
    XmlBlock& side(std::string_view name, std::string_view v) {
        bool scratch = true;
        mlGen::AppendAnXML(out_, name, v, scratch);
        return *this;
    }
    void close() {
        if (nilable_ && empty_) {
            out_.resize(start_);
            out_.append("<").append(name_).append(" xsi:nil=\"true\"/>");
            return;
        }
        out_.append("</").append(name_).append(">");
    }

private:
    std::string& out_;
    std::string_view name_;
    bool nilable_;
    std::size_t start_;
    bool empty_ = true;
};

}  // namespace tamrel
