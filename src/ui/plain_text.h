#pragma once

#include <QString>

#include "image/display_text.h"

namespace rqm5 {

/// A text of a stranger, such as a file name, with its control characters made visible.
inline QString VisibleText(const QString& text)
{
    return QString::fromStdString(VisibleText(text.toStdString()));
}

/// The same text for a tool tip, which would take what looks like markup for markup. A paragraph is broken
/// into lines.
inline QString PlainToolTip(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

}  // namespace rqm5
