#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Marks an English text as one that is translated where it is shown. scripts/update-translations collects
/// what stands in these marks.
#define MESSAGE(text) text

namespace rqm5 {

/// What is to be said, before it is said in a language: an English text with places "%1" to "%9", which is
/// its id in the translations, and what stands in the places. Rules give these and build no sentences, so
/// that a window says them in its user's language, and what scripts read stays English.
class Message
{
  public:
    /// The translation of an English text, UTF-8; the text itself where there is none.
    using Translator = std::string (*)(const char* id);

    Message() = default;
    /// \param id  a text in MESSAGE; it is kept as a pointer
    Message(const char* id, std::vector<Message> arguments = {}) : id_(id), parts_(std::move(arguments)) {}
    /// What is the same in every language: a name, a value, what a file holds.
    Message(std::string text) : text_(std::move(text)) {}
    Message(std::string_view text) : text_(text) {}
    Message(int number) : text_(std::to_string(number)) {}

    /// Several, one after the other, with a text that is the same in every language between them.
    static Message List(std::vector<Message> parts, std::string separator);

    bool empty() const { return id_ == nullptr && text_.empty() && parts_.empty(); }

    std::string English() const;
    std::string Say(Translator translate) const;

    friend bool operator==(const Message& a, const Message& b) { return a.English() == b.English(); }

  private:
    const char* id_ = nullptr;
    std::string text_;  ///< without an id: what is said, or what stands between the parts
    std::vector<Message> parts_;
};

/// "1 row", "5 rows": of two texts the one for the number, which stands in the place of the second.
inline Message Counted(int number, const char* one, const char* many)
{
    return number == 1 ? Message(one) : Message(many, {number});
}

}  // namespace rqm5
