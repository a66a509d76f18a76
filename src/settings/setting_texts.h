#pragma once

#include <string>
#include <string_view>

#include "image/receiver_settings.h"

namespace rqm5 {

/// How many settings have words: all but the count that no page shows.
inline constexpr int kSettingsInWords = kSettings - 1;

/// What a setting is called, by its place in kSettingFields: "Lamp".
std::string_view SettingCaption(int setting);

/// What a value of it is called: "5sec". Check boxes are "on" or "off".
std::string SettingValueText(int setting, int value);

/// What the value that it has is called.
std::string SettingText(const ReceiverSettings& settings, int setting);

}  // namespace rqm5
