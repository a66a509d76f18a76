#pragma once

#include <span>
#include <string>
#include <string_view>

namespace rqm5 {

/// A text as UTF-8, and what it was written in.
struct DecodedList
{
    std::string text;
    std::string encoding;  ///< "UTF-8", "UTF-16", "WINDOWS-1252", ...
};

/// The text of a list: UTF-8, UTF-16 with its mark, else what its letters look like. Never fails; what is no
/// character becomes U+FFFD.
/// \param encoding  what somebody says it is; empty to find out
DecodedList DecodeList(std::string_view bytes, const std::string& encoding = {});

/// The text of a CSV file of this program, which is in code page 932 where it is not UTF-8; but a spreadsheet
/// may have saved it in UTF-16 or in the code page of Western Europe.
std::string DecodeCsv(std::string_view bytes);

/// Encodings that somebody may choose.
std::span<const std::string_view> ListEncodings();

/// True when letters can be converted from this encoding.
bool IsKnownEncoding(const std::string& encoding);

}  // namespace rqm5
