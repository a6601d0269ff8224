// The protocol lines: one ";"-separated line per report, for the host's
// protocol of sent reports. Each method reads the same data object as its
// generator, plus whether the report failed and the failure's text.
#pragma once
#include <string>
#include <string_view>

#include "core/generator.h"

namespace tamrel {

struct BeitrNachw;
struct Meldung;
struct BeitrErh;
struct Erst;
struct Zahl;
struct Betrieb;
struct Entgelt;
struct ArbeitsBesch;
struct AbfrVers;
struct AbfrStammdatenUV;
struct Lohnnachweis;
struct LnPosition;

class clsProtoEntry : public Generator {
public:
    explicit clsProtoEntry(Host host = default_host()) : Generator(std::move(host)) {}

    std::string CreateProtoBeitr(const BeitrNachw& objBeitrNachw, bool blnError,
                                 std::string_view strErrText = {}) const;
    std::string CreateProtoMeld(const Meldung& objMeldung, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoBeitrErh(const BeitrErh& objBeitrErh, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoErst(const Erst& objErst, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoZahl(const Zahl& objZahl, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoBetrieb(const Betrieb& objBetrieb, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoEntgelt(const Entgelt& objEntgelt, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoArbeitsBesch(const ArbeitsBesch& objArbeitsBesch, bool blnError,
                                        std::string_view strErrText = {}) const;
    std::string CreateProtoAbfrVers(const AbfrVers& objAbfrVers, bool blnError, std::string_view strErrText = {}) const;
    std::string CreateProtoAbfrStammdatenUV(const AbfrStammdatenUV& objAbfrStammdatenUV, bool blnError,
                                            std::string_view strErrText = {}) const;
    std::string CreateProtoLohnnachweis(const Lohnnachweis& objLohnnachweis, bool blnError,
                                        std::string_view strErrText = {}) const;
};

}  // namespace tamrel
