#pragma once

#include <QString>
#include <QStringList>

namespace rqm5 {

/// The file that a command line names: the text as it stands when it has 5 characters or fewer, else
/// without its first and last character, the quotes that a shell leaves around a path.
QString CommandFile(const QString& commandLine);

/// The command line as a shell writes it, quotes included, from the arguments behind the program's name.
///
/// A system that hands over arguments has taken the quotes off; they are put back around the first
/// argument, unless it carries them already or would be too short for CommandFile to take them off again.
QString CommandLineText(const QStringList& arguments);

}  // namespace rqm5
