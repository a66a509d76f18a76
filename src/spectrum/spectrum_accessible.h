#pragma once

namespace rqm5 {

/// Makes every channel of a spectrum a thing of its own for screen readers, with a name, a place and whether
/// it is selected. Calling it again does nothing.
void InstallSpectrumAccessibility();

}  // namespace rqm5
