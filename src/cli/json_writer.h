#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>

namespace rqm5 {

/// Writes one JSON text from its front to its end; bytes that are no UTF-8 become U+FFFD.
class JsonWriter
{
  public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}

    void Open(char bracket);
    void Close(char bracket);
    JsonWriter& Key(std::string_view name);

    void Text(std::string_view text);
    void Number(std::int64_t number);
    void Flag(bool flag);
    void Null();

    void Member(std::string_view name, std::string_view text) { Key(name).Text(text); }
    void Member(std::string_view name, const char* text) { Key(name).Text(text); }
    void Member(std::string_view name, int number) { Key(name).Number(number); }
    void Member(std::string_view name, std::int64_t number) { Key(name).Number(number); }
    void Member(std::string_view name, bool flag) { Key(name).Flag(flag); }

  private:
    void Separate();

    std::ostream& out_;
    bool isFirst_ = true;  ///< nothing stands behind the last bracket or key yet
};

}  // namespace rqm5
