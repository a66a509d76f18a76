#pragma once

#include <string>
#include <vector>

#include "image/receiver_settings.h"

namespace rqm5 {

/// A setting in words: its caption and what its value is called, e.g. "Lamp", "5sec". Check boxes are
/// "on" or "off".
struct SettingText
{
    std::string caption;
    std::string value;
};

/// Every setting, in the order of the settings pages.
std::vector<SettingText> SettingTexts(const ReceiverSettings& settings);

}  // namespace rqm5
