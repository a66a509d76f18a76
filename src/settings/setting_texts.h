#pragma once

#include "image/receiver_settings.h"
#include "language/message.h"

namespace rqm5 {

/// How many settings have words: all but the count that no page shows.
inline constexpr int kSettingsInWords = kSettings - 1;

/// What a setting is called, by its place in kSettingFields: "Lamp".
Message SettingCaption(int setting);

/// What a value of it is called: "5sec". Check boxes are "on" or "off".
Message SettingValueText(int setting, int value);

/// What the value that it has is called.
Message SettingText(const ReceiverSettings& settings, int setting);

}  // namespace rqm5
