#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

// Fields of a channel and their values as they are typed: "mode=AM", "tone=88.5", "skip=on".

/// A part of a channel (see ChannelPart) with a value that it can have.
struct FieldValue
{
    int part = kFrequency;
    int code = 0;            ///< of a choice or a mark
    std::int64_t hertz = 0;  ///< of a frequency or offset
    std::string text = {};   ///< of a note
};

/// The part that a word stands for: "freq", "mode", "offset", ...; nothing for any other word.
std::optional<int> PartOfWord(std::string_view word);

/// Every word of PartOfWord, for messages: "freq, mode, ... or enabled".
Message FieldWords();

/// A value as the table writes it, in letters of any case, units left out or not; else what it could be.
std::variant<FieldValue, Message> ReadFieldValue(int part, std::string_view text);

/// "FIELD=VALUE"; else what is wrong with it.
std::variant<FieldValue, Message> ReadAssignment(std::string_view text);

/// True when a row with a channel has the value; a note is compared as a whole.
bool HasValue(const Channel& channel, const FieldValue& value);

/// Writes the values into a row, all of them or none, within the limits of the editor.
///
/// A frequency makes a channel of an empty row, as typing it into the table does.
/// \return why it is refused; empty when it is done
Message AssignFields(CloneImage& image, RowId id, std::span<const FieldValue> values);

}  // namespace rqm5
