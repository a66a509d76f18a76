#include "app/command_file.h"

namespace rqm5 {

namespace {

constexpr int kKeptAsItStands = 5;

}  // namespace

QString CommandFile(const QString& commandLine)
{
    if (commandLine.size() <= kKeptAsItStands)
        return commandLine;
    return commandLine.sliced(1, commandLine.size() - 2);
}

QString CommandLineText(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return {};
    const QString& argument = arguments.constFirst();
    const QLatin1Char quote('"');
    const bool isQuoted = argument.size() >= 2 && argument.startsWith(quote) && argument.endsWith(quote);
    if (isQuoted || argument.size() + 2 <= kKeptAsItStands)
        return argument;
    return quote + argument + quote;
}

}  // namespace rqm5
