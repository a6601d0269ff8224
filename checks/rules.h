// Every rule of the checks, with its identifier and messages. Where each
// comes from is in docs/checks.md.
#pragma once
#include <span>

#include "checks/finding.h"

namespace tamrel::checks {

inline constexpr Severity E = Severity::Error, W = Severity::Warning;

// Numbers
inline constexpr Rule kVsnrForm{"VSNR-FORM", E,
                                "Versicherungsnummer: 12 Zeichen (Bereichsnummer, Geburtsdatum, Buchstabe, "
                                "Seriennummer, Prüfziffer) erwartet",
                                "insurance number: expected 12 characters (area, birth date, letter, serial, check "
                                "digit)"};
inline constexpr Rule kVsnrArea{"VSNR-AREA", E, "Versicherungsnummer: Bereichsnummer nicht zwischen 02 und 89",
                                "insurance number: area number not between 02 and 89"};
inline constexpr Rule kVsnrDate{"VSNR-DATE", E, "Versicherungsnummer: Stellen 3 bis 8 sind kein Geburtsdatum (TTMMJJ)",
                                "insurance number: positions 3 to 8 are not a birth date (DDMMYY)"};
inline constexpr Rule kVsnrCheckDigit{"VSNR-CHECKDIGIT", E, "Versicherungsnummer: Prüfziffer falsch",
                                      "insurance number: wrong check digit"};
inline constexpr Rule kBnrForm{"BNR-FORM", E, "Betriebsnummer: 8 Ziffern erwartet",
                               "establishment number: expected 8 digits"};
inline constexpr Rule kBnrCheckDigit{"BNR-CHECKDIGIT", E, "Betriebsnummer: Prüfziffer falsch",
                                     "establishment number: wrong check digit"};

// Dates, periods, amounts, keys, presence
inline constexpr Rule kDate{"DATE", E, "kein gültiges Datum (JJJJMMTT)", "not a calendar date (YYYYMMDD)"};
inline constexpr Rule kCreationDate{"CREATION-DATE", E, "Erstellungsdatum: leer oder JJJJMMTT erwartet",
                                    "creation date: expected empty or YYYYMMDD"};
inline constexpr Rule kMonth{"MONTH", E, "kein gültiger Monat (JJJJMM)", "not a month (YYYYMM)"};
inline constexpr Rule kPeriod{"PERIOD", E, "Beginn liegt nach dem Ende", "the start is after the end"};
inline constexpr Rule kAmountChars{
    "AMOUNT-CHARS", E,
    "Betrag: unzulässiges Zeichen (erlaubt sind Ziffern und, wo das Feld sie vorsieht, ein "
    "Dezimaltrennzeichen und ein führendes Vorzeichen)",
    "amount: unexpected character (digits, and where the field has them one decimal "
    "separator and a leading sign)"};
inline constexpr Rule kAmountNegative{"AMOUNT-NEGATIVE", E, "Betrag: darf nicht negativ sein",
                                      "amount: must not be negative"};
inline constexpr Rule kAmountTooLong{"AMOUNT-LENGTH", E, "Betrag: mehr Stellen als das Feld fasst",
                                     "amount: more digits than the field holds"};
inline constexpr Rule kAmountDecimals{"AMOUNT-DECIMALS", E, "Betrag: mehr Nachkommastellen als das Feld fasst",
                                      "amount: more decimal places than the field holds"};
inline constexpr Rule kDigits{"DIGITS", E, "nur Ziffern in der vorgegebenen Länge erlaubt",
                              "expected digits of the field's length"};
inline constexpr Rule kNumberRange{"NUMBER-RANGE", E, "Zahl: negativ oder mehr Stellen als ihr Feld",
                                   "number: negative, or more digits than its field holds"};
inline constexpr Rule kReasonUnknown{"REASON-UNKNOWN", E, "Abgabegrund ist kein Schlüssel der Abgabegründe",
                                     "report reason is not a published reason key"};
inline constexpr Rule kContributionGroup{"CONTRIBUTION-GROUP", E, "Beitragsgruppe ist kein gültiger Schlüssel",
                                         "contribution group is not a valid key for its branch"};
inline constexpr Rule kContributionGroupOld{"CONTRIBUTION-GROUP-2008", W,
                                            "Beitragsgruppe 2 (erhöhter Beitrag) gilt nur bis 31.12.2008",
                                            "contribution group 2 (increased rate) applies only until 2008-12-31"};
inline constexpr Rule kGender{"GENDER", E, "Geschlecht: M, W, D oder X erwartet", "gender: expected M, W, D or X"};
inline constexpr Rule kMissing{"MISSING", E, "Angabe fehlt", "missing"};
inline constexpr Rule kTextLength{"TEXT-LENGTH", W, "Text länger als sein Feld: er wird abgeschnitten",
                                  "text longer than its field: it is cut"};
inline constexpr Rule kKeyLength{"KEY-LENGTH", E, "Schlüssel länger als sein Feld", "key longer than its field"};
inline constexpr Rule kListCount{"LIST-COUNT", E, "mehr Einträge, als das Anzahlfeld des Bausteins fasst",
                                 "more entries than the block's count field holds"};
inline constexpr Rule kDbksLines{"DBKS-LINES", E, "DBKS: genau 12 Zeilen (KsErster bis KsLetzter) erwartet",
                                 "DBKS: expected exactly 12 lines (KsErster to KsLetzter)"};
inline constexpr Rule kProcedureKey{"VERFAHREN", E, "enmVerfahren: 0 (vmNormal), 1 (vmSofort) oder 2 (vmBV) erwartet",
                                    "enmVerfahren: expected 0 (vmNormal), 1 (vmSofort) or 2 (vmBV)"};
inline constexpr Rule kEndOnRegistration{"END-ON-REGISTRATION", W, "Ende bei einer Anmeldung angegeben",
                                         "an end date on a registration"};

// Transfer files
inline constexpr Rule kFileFirst{"FILE-FIRST", E, "Die Datei beginnt nicht mit VOSZ",
                                 "the file does not begin with VOSZ"};
inline constexpr Rule kFileSecond{"FILE-SECOND", E, "Auf VOSZ folgt nicht DSKO", "VOSZ is not followed by DSKO"};
inline constexpr Rule kFileLast{"FILE-LAST", E, "Die Datei endet nicht mit NCSZ", "the file does not end with NCSZ"};
inline constexpr Rule kFileFrame{"FILE-FRAME", E,
                                 "Vorlaufsatz, Kommunikationssatz oder Nachlaufsatz an falscher Stelle",
                                 "a frame record (VOSZ, DSKO, NCSZ) in the wrong place"};
inline constexpr Rule kFileCount{"FILE-COUNT", E, "Anzahl der Datensätze im NCSZ stimmt nicht",
                                 "the NCSZ count does not match the records of the file"};
inline constexpr Rule kFileParties{"FILE-PARTIES", E, "Absender oder Empfänger weicht vom VOSZ ab",
                                   "sender or receiver differs from the VOSZ's"};
inline constexpr Rule kRecordLength{"RECORD-LENGTH", E, "Satzlänge stimmt nicht", "the record's length is wrong"};
inline constexpr Rule kFieldLiteral{"FIELD-LITERAL", E, "fester Feldinhalt falsch", "a fixed field content is wrong"};
inline constexpr Rule kBlockMissing{"BLOCK-MISSING", E,
                                    "Angekündigter Datenbaustein fehlt oder steht an falscher Stelle",
                                    "a block the record announces is missing or out of order"};
inline constexpr Rule kBlockUnannounced{"BLOCK-UNANNOUNCED", E,
                                        "Datenbaustein oder Text, den der Datensatz nicht ankündigt",
                                        "a block or text the record does not announce"};
inline constexpr Rule kRecordUnknown{"RECORD-ID", E, "Unbekannte Satzart", "unknown record identifier"};
inline constexpr Rule kFlag{"FLAG", E, "J oder N erwartet", "expected J or N"};
inline constexpr Rule kAmountDigits{"AMOUNT-FIELD", E,
                                    "Betragsfeld: Ziffern (und, wo vorgesehen, ein Vorzeichen) erwartet",
                                    "amount field: expected digits (and, where the field has one, a sign)"};
inline constexpr Rule kDateTime{"DATETIME", E, "kein gültiger Zeitpunkt (JJJJMMTTHHMMSS)",
                                "not a date and time (YYYYMMDDHHMMSS)"};

inline constexpr Rule kMarkup{"MARKUP", E,
                              "Text enthält ein Markup-Zeichen (&, < oder >), das eine XML-Meldung nicht tragen kann",
                              "holds a markup character (&, < or >), which an XML report cannot carry"};

inline constexpr const Rule* kRules[] = {&kVsnrForm,       &kVsnrArea,          &kVsnrDate,
                                         &kVsnrCheckDigit, &kBnrForm,           &kBnrCheckDigit,
                                         &kDate,           &kCreationDate,      &kMonth,
                                         &kPeriod,         &kAmountChars,       &kAmountNegative,
                                         &kAmountTooLong,  &kAmountDecimals,    &kDigits,
                                         &kNumberRange,    &kDbksLines,         &kProcedureKey,
                                         &kReasonUnknown,  &kContributionGroup, &kContributionGroupOld,
                                         &kGender,         &kMissing,           &kEndOnRegistration,
                                         &kListCount,      &kTextLength,        &kKeyLength,
                                         &kFileFirst,      &kFileSecond,        &kFileLast,
                                         &kFileFrame,      &kFileCount,         &kFileParties,
                                         &kRecordLength,   &kFieldLiteral,      &kDateTime,
                                         &kBlockMissing,   &kBlockUnannounced,  &kRecordUnknown,
                                         &kFlag,           &kAmountDigits,      &kMarkup};

}  // namespace tamrel::checks
