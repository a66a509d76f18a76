#pragma once

#include <QList>
#include <QString>

namespace rqm5 {

/// What a bug report should say about this copy of the program. Texts are plain.
struct AboutFact
{
    QString name;
    QString value;
};

/// Name, version and build, licence, Qt, system, where settings and the port file lie.
///
/// \param portFile  path of "RQ-M5.ini"
/// \param port      COM number in use
/// \param device    what it stands for; empty when nothing does
QList<AboutFact> AboutFacts(const QString& portFile, int port, const QString& device);

/// The facts as text, one a line, the way they are copied.
QString AboutText(const QList<AboutFact>& facts);

}  // namespace rqm5
