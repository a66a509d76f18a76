#include "cli/json_writer.h"

#include <ostream>

#include "image/memory_block.h"
#include "image/utf8.h"

namespace rqm5 {

void JsonWriter::Separate()
{
    if (!isFirst_)
        out_ << ',';
    isFirst_ = false;
}

void JsonWriter::Open(char bracket)
{
    Separate();
    out_ << bracket;
    isFirst_ = true;
}

void JsonWriter::Close(char bracket)
{
    out_ << bracket;
    isFirst_ = false;
}

JsonWriter& JsonWriter::Key(std::string_view name)
{
    Text(name);
    out_ << ':';
    isFirst_ = true;
    return *this;
}

void JsonWriter::Text(std::string_view text)
{
    Separate();
    out_ << '"';
    while (!text.empty()) {
        const Character next = FirstCharacter(text);
        if (next.code == kNoCharacter)
            out_ << "\xEF\xBF\xBD";
        else if (next.code < 0x20 || next.code == 0x7F)
            out_ << "\\u" << HexAddress(static_cast<int>(next.code));
        else if (next.code == '"' || next.code == '\\')
            out_ << '\\' << text.front();
        else
            out_ << text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
    out_ << '"';
}

void JsonWriter::Number(std::int64_t number)
{
    Separate();
    out_ << number;
}

void JsonWriter::Flag(bool flag)
{
    Separate();
    out_ << (flag ? "true" : "false");
}

void JsonWriter::Null()
{
    Separate();
    out_ << "null";
}

}  // namespace rqm5
