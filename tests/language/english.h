#pragma once

#include <string>
#include <vector>

#include "language/message.h"

namespace rqm5 {

/// What messages say in English, to compare them.
inline std::vector<std::string> English(const std::vector<Message>& messages)
{
    std::vector<std::string> texts;
    texts.reserve(messages.size());
    for (const Message& message : messages)
        texts.push_back(message.English());
    return texts;
}

}  // namespace rqm5
