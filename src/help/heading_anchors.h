#pragma once

#include <QString>
#include <QStringList>
#include <QTextDocument>

namespace rqm5 {

/// The anchor that a heading's text gives: lower case, blanks to "-", everything else but letters, digits,
/// "-" and "_" left out, so that links work here as they do where the files are shown on the web.
QString AnchorOf(const QString& heading);

/// Gives every heading of a document that was made from Markdown its anchor, which Qt does not do.
/// \return the anchors
QStringList AddHeadingAnchors(QTextDocument& document);

}  // namespace rqm5
