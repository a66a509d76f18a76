#include "language/message.h"

namespace rqm5 {
namespace {

/// Every place is filled at once, so that a "%1" in what is put in stays as it is.
std::string Filled(std::string_view text, const std::vector<std::string>& arguments)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPlace =
            text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        const auto number = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : arguments.size();
        if (number >= arguments.size()) {
            filled += text[i];
            continue;
        }
        filled += arguments[number];
        ++i;
    }
    return filled;
}

}  // namespace

Message Message::List(std::vector<Message> parts, std::string separator)
{
    if (parts.empty())
        return {};
    Message list(std::move(separator));
    list.parts_ = std::move(parts);
    return list;
}

std::string Message::English() const
{
    return Say([](const char* id) { return std::string(id); });
}

std::string Message::Say(Translator translate) const
{
    std::vector<std::string> said;
    for (const Message& part : parts_)
        said.push_back(part.Say(translate));
    if (id_ != nullptr)
        return Filled(translate(id_), said);
    if (said.empty())
        return text_;
    std::string list = said.front();
    for (std::size_t i = 1; i < said.size(); ++i)
        list += text_ + said[i];
    return list;
}

}  // namespace rqm5
