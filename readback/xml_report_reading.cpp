#include "readback/xml_report_reading.h"

#include <stdexcept>

#include "core/text.h"
#include "readback/prover.h"
#include "readback/record_forms.h"
#include "run/output_encoding.h"
#include "xml/clsGenAsyl/Asyl_properties.h"
#include "xml/clsGenAsyl/SKEK_elements.h"

namespace tamrel::readback {
namespace {

namespace L = layouts::asyl;

// A data element far beyond any report (its image included): what is
// longer is no XML report, and is not read to its end.
constexpr std::size_t kMaxElementBytes = std::size_t{64} << 20;
constexpr std::string_view kBlanks = " \t\r\n";

// One element: its name, whether it is nil, and what stands between its tags.
struct Node {
    std::string_view name, body;
    bool nil = false;
};

// The element at `i` (after blanks); false where none begins there.
bool next_element(std::string_view s, std::size_t& i, Node& n) {
    i = s.find_first_not_of(kBlanks, i);
    if (i == std::string_view::npos || s[i] != '<' || i + 1 >= s.size() || s[i + 1] == '/') return false;
    const std::size_t end_name = s.find_first_of(" \t\r\n/>", i + 1);
    const std::size_t close = s.find('>', i);
    if (end_name == std::string_view::npos || close == std::string_view::npos) return false;
    n.name = s.substr(i + 1, end_name - i - 1);
    const std::string_view attributes = s.substr(end_name, close - end_name);
    if (s[close - 1] == '/') {
        n.nil = attributes.find("nil=\"true\"") != std::string_view::npos;
        n.body = {};
        i = close + 1;
        return true;
    }
    const std::string end = "</" + std::string(n.name) + ">";
    const std::size_t at = s.find(end, close + 1);
    if (at == std::string_view::npos) return false;
    n.nil = false;
    n.body = s.substr(close + 1, at - close - 1);
    i = at + end.size();
    return true;
}

// An element's text: the five predefined entities resolved.
std::string unescaped(std::string_view s) {
    static constexpr std::pair<std::string_view, char> kEntities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    std::string out;
    for (std::size_t i = 0; i < s.size();) {
        bool done = false;
        if (s[i] == '&')
            for (const auto& [entity, c] : kEntities)
                if (s.substr(i, entity.size()) == entity) {
                    out += c;
                    i += entity.size();
                    done = true;
                    break;
                }
        if (!done) out += s[i++];
    }
    return out;
}

// Each child element of `body`, with its text.
template <class F>
void each_child(std::string_view body, F&& f) {
    Node n;
    for (std::size_t i = 0; next_element(body, i, n);) f(n, n.nil ? std::string() : unescaped(n.body));
}

// A date element "yyyy-mm-dd" as the property's yyyymmdd; anything else as it stands.
std::string date_value(std::string v) {
    if (v.size() == 10 && v[4] == '-' && v[7] == '-') return v.substr(0, 4) + v.substr(5, 2) + v.substr(8, 2);
    return v;
}

template <class O, std::size_t N>
void read_elements(const L::Element<O> (&table)[N], const Node& block, O& obj) {
    each_child(block.body, [&](const Node& n, std::string v) {
        for (const auto& e : table)
            if (e.name == n.name) obj.*e.member = e.kind == L::XmlKind::Date ? date_value(std::move(v)) : std::move(v);
    });
}

// The record's time stamp: yyyy-mm-ddThh:mm:ss.ffffff, character by
// character, or as written where it had no date's form: its time, then
// the last six characters the microseconds.
void read_stamp(std::string_view v, RecordFrame& frame) {
    const bool iso = text::char_count(v) == 26 && text::mid(v, 5, 1) == "-" && text::mid(v, 11, 1) == "T";
    if (!iso) {
        const std::size_t n = text::char_count(v);
        frame.created = text::left(v, n > 6 ? n - 6 : 0);
        frame.datensatz.strMicroseconds = text::right(v, 6);
        return;
    }
    for (const auto& [from, len] : {std::pair{1, 4}, {6, 2}, {9, 2}, {12, 2}, {15, 2}, {18, 2}})
        frame.created += text::mid(v, from, len);
    frame.datensatz.strMicroseconds = text::mid(v, 21, 6);
}

// The data element's blocks into the data object and the record frame.
ReadReport read_daten(std::string_view body) {
    Asyl a;
    ReadReport r;
    r.frame.createdFrom = "ErstellDatum";
    each_child(body, [&](const Node& block, const std::string&) {
        if (block.name == "skek") {
            read_elements(L::kSKEK, block, a);
            each_child(block.body, [&](const Node& n, std::string v) {
                if (n.name == "bbnrab") r.frame.datensatz.strBNRAb = v;
                if (n.name == "bbnrep") a.Empfaenger.Betriebsnummer = v;
                if (n.name == "ds-id") a.DatensatzNr = read_version_number(v, r.frame);
                if (n.name == "ed") read_stamp(v, r.frame);
            });
        } else if (block.name == "bmgd") {
            read_elements(L::kPerson, block, a.Mgd);
        } else if (block.name == "bang") {
            read_elements(L::kBANG, block, a);
            read_elements(L::kPerson, block, a.Ang);
        } else if (block.name == "bzrm") {
            read_elements(L::kBZRM, block, a);
        } else if (block.name == "bbtr") {
            read_elements(L::kAddress, block, a.Btr);
        } else if (block.name == "bapk") {
            read_elements(L::kBAPK, block, a);
        } else if (block.name == "bzgk") {
            read_elements(L::kAddress, block, a.Zgk);
        } else if (block.name == "bimg") {
            read_elements(L::kBIMG, block, a);
            std::size_t length = 0;
            each_child(block.body, [&](const Node& n, std::string v) {
                if (n.name == "dateina") r.frame.datensatz.strDateiname = std::move(v);
                if (n.name == "prueflbilddatei") convert(v, length);
            });
            // The length counts the blanks around the image that its element drops.
            if (const std::size_t shown = text::char_count(a.Bilddatei); length > shown)
                a.Bilddatei.append(length - shown, ' ');
        }
    });
    r.json = to_json(a);
    return r;
}

// The element's text without the blanks between its tags, as it is built.
std::string without_blanks_between_tags(std::string_view s) {
    std::string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '>') {
            const std::size_t next = s.find_first_not_of(kBlanks, i + 1);
            out += '>';
            if (next != std::string_view::npos && s[next] == '<') i = next - 1;
            continue;
        }
        out += s[i];
    }
    return out;
}

checks::FileEncoding declared_encoding(std::string_view declaration) {
    // encoding="…" or encoding='…'
    constexpr std::string_view key = "encoding=";
    const std::size_t at = declaration.find(key);
    if (at == std::string_view::npos || at + key.size() >= declaration.size()) return checks::FileEncoding::Utf8;
    const std::string_view rest = declaration.substr(at + key.size() + 1);
    const std::optional<cli::Encoding> e = cli::parse_encoding(rest.substr(0, rest.find_first_of("\"'")));
    return e ? cli::file_encoding(*e) : checks::FileEncoding::Utf8;
}

class XmlReader {
public:
    XmlReader(ReadResult& out, const ReadOptions& options, const std::function<void(const std::string&)>& report)
        : out_(out),
          encoding_(options.encoding),
          given_(options.encoding != checks::FileEncoding::Detect),
          report_(report) {}

    // One top-level element as it stands in the file (bytes).
    void element(std::string_view name, std::string_view bytes) {
        const std::size_t n = ++out_.records;
        checks::decode(bytes, encoding_, chars_);
        const std::string text = without_blanks_between_tags(checks::to_utf8(chars_));
        std::size_t i = 0;
        Node node;
        if (!next_element(text, i, node)) return skip(n, std::string(name), "not a whole element");
        if (name == "vosz") {
            frame_.vosz = text;
            each_child(node.body, [&](const Node& c, std::string v) {
                static constexpr std::pair<std::string_view, std::string_view> kHead[] = {
                    {"bbnrab", "strBNRAb"}, {"bbnrep", "strBNREm"}, {"dtnr", "strFileNr"}, {"naab", "strFirma"}};
                for (const auto& [element, key] : kHead)
                    if (c.name == element) frame_.head[std::string(key)] = v;
                if (c.name == "ed") frame_.voszDate = date_value(v);
            });
        } else if (name == "daten") {
            data(n, node.body, text);
        } else if (name != "ncsz") {
            skip(n, std::string(name), "no element of the XML report tamrel writes");
        }
    }

    void declaration(std::string_view text) {
        if (!given_) encoding_ = declared_encoding(text);
    }

    void finish() {
        if (!prover_) settle(nullptr);
        if (!prover_) return;
        out_.job = prover_->head();
        if (!frame_.vosz.empty() && prover_->vosz() != frame_.vosz)
            skip(1, "vosz", "read back, the header builds differently");
    }

private:
    void skip(std::size_t n, std::string id, std::string why) { out_.skipped.push_back({n, std::move(id), why}); }

    bool settle(const RecordFrame* first) {
        try {
            prover_ = std::make_unique<Prover>(*find_procedure("clsGenAsyl"), job_head("clsGenAsyl", frame_, first, 0));
        } catch (const std::exception&) {
            out_.job = job_head("clsGenAsyl", frame_, nullptr, 0);
        }
        return prover_ != nullptr;
    }

    void data(std::size_t n, std::string_view body, const std::string& text) {
        ReadReport report = read_daten(body);
        if (first_created_.empty()) first_created_ = report.frame.created;
        give_own_time(report, first_created_);
        if (!prover_ && !settle(&report.frame)) return skip(n, "daten", "the frame values cannot be read");
        const Prover::Built built = prover_->build(report.json);
        if (!built.error.empty()) return skip(n, "daten", "read back, it is refused: " + built.error);
        if (built.record != text) {
            std::size_t at = 0;
            while (at < text.size() && at < built.record.size() && text[at] == built.record[at]) ++at;
            return skip(n, "daten",
                        "read back, it builds differently from byte " + std::to_string(at + 1) + " of the element");
        }
        report_(report.json);
        ++out_.reports;
    }

    ReadResult& out_;
    checks::FileEncoding encoding_;
    bool given_;
    const std::function<void(const std::string&)>& report_;
    Frame frame_;
    std::unique_ptr<Prover> prover_;
    std::u32string chars_;
    std::string first_created_;
};

}  // namespace

ReadResult read_xml_report(std::istream& in, const ReadOptions& options,
                           const std::function<void(const std::string& report)>& report) {
    ReadResult out;
    XmlReader reader(out, options, report);
    std::string buf;
    std::size_t pos = 0;
    bool eof = false;
    auto more = [&] {
        if (eof) return false;
        if (pos > 0) buf.erase(0, pos), pos = 0;
        char chunk[1 << 16];
        in.read(chunk, sizeof chunk);
        buf.append(chunk, static_cast<std::size_t>(in.gcount()));
        eof = in.gcount() == 0;
        if (in.bad()) throw std::runtime_error("cannot be read");
        return !eof;
    };
    // The text from `pos` to the end of `end`, reading on until it comes.
    auto until = [&](std::string_view end, std::size_t from) -> std::size_t {
        for (;;) {
            const std::size_t at = buf.find(end, pos + from);
            if (at != std::string::npos) return at + end.size() - pos;
            if (buf.size() - pos > kMaxElementBytes)
                throw std::runtime_error("record " + std::to_string(out.records + 1) + ": an element longer than " +
                                         std::to_string(kMaxElementBytes >> 20) + " MiB");
            const std::size_t had = buf.size() - pos;
            if (!more()) return std::string::npos;
            from = had > end.size() ? had - end.size() : 0;
        }
    };
    for (;;) {
        while (pos < buf.size() && kBlanks.find(buf[pos]) != std::string_view::npos) ++pos;
        if (pos >= buf.size()) {
            if (!more()) break;
            continue;
        }
        if (buf.size() - pos < 16 && !eof && more()) continue;
        if (buf[pos] != '<') throw std::runtime_error("text outside the XML report's elements");
        const std::string_view rest(buf.data() + pos, buf.size() - pos);
        std::size_t len;
        if (rest.starts_with("<?") || rest.starts_with("<!--") || rest.starts_with("</") ||
            rest.starts_with("<kotkv")) {
            len = until(rest.starts_with("<!--") ? "-->" : ">", 0);
            if (len == std::string::npos) break;
            if (buf.compare(pos, 5, "<?xml") == 0) reader.declaration(std::string_view(buf.data() + pos, len));
        } else {
            const std::size_t name_end = rest.find_first_of(" \t\r\n/>");
            const std::string name(rest.substr(1, name_end == std::string_view::npos ? 0 : name_end - 1));
            const std::size_t open = until(">", 0);
            if (open == std::string::npos) break;
            len = buf[pos + open - 2] == '/' ? open : until("</" + name + ">", open);
            if (len == std::string::npos) throw std::runtime_error("the element " + name + " does not end");
            reader.element(name, std::string_view(buf.data() + pos, len));
        }
        pos += len;
    }
    reader.finish();
    return out;
}

}  // namespace tamrel::readback
