#pragma once

#include "image/problem.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The message of an operation that failed: title "ERROR", the problem's fixed text, its details as
/// informative text.
Prompt ErrorPrompt(const Problem& problem);

}  // namespace rqm5
