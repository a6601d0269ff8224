// The frame records of every transfer file: header VOSZ, communication
// record DSKO and trailer NCSZ (shared builders of module mlGen).
#pragma once
#include <string>
#include <string_view>

#include "core/date.h"
#include "core/objects.h"

namespace tamrel::mlGen {

std::string GenVOSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view dateText);
std::string GenVOSZ(std::string_view code, std::string_view sender, std::string_view receiver, std::string_view fileNr,
                    std::string_view senderName, std::string& dateText, const Date& date, std::string_view version);
std::string GenNCSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view count, std::string_view dateText);
std::string GenNCSZ(std::string_view code, std::string_view sender, std::string_view receiver, std::string_view fileNr,
                    std::string_view count, const Date& date, std::string_view version);
std::string GenDSKO(DSKOData& data, std::string_view code, const Date& date);

}  // namespace tamrel::mlGen
