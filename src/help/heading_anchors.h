#pragma once

#include <QString>
#include <QStringList>
#include <QTextDocument>

namespace rqm5 {

/// The anchor that a heading's text gives: lower case, blanks to "-", everything else but letters, digits,
/// "-" and "_" left out, so that links work here as they do where the files are shown on the web.
QString AnchorOf(const QString& heading);

/// Gives every heading of a document that was made from Markdown its anchor, which Qt does not do.
/// \param given  those of the headings in their order, where they do not go by the headings' texts
/// \return the anchors
QStringList AddHeadingAnchors(QTextDocument& document, const QStringList& given = {});

}  // namespace rqm5
