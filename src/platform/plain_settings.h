#pragma once

namespace rqm5 {

/// Passes over a file of the user's settings that is a pipe or a device: opening it could wait for ever. The
/// program has its default settings then and remembers none. Programs call it before they look at settings.
void PassOverSettingsThatAreNoFiles();

}  // namespace rqm5
