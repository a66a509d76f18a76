#include "app/diagnostics/diagnostics_texts.h"

#include <QCoreApplication>
#include <QStringList>

#include "image/display_text.h"
#include "link/commands.h"
#include "link/link_problems.h"
#include "link/memory_map.h"

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("Diagnostics", text);
}

QString Milliseconds(std::chrono::microseconds time)
{
    return QString::number(static_cast<double>(time.count()) / 1000.0, 'f', 1);
}

QString PortFailureText(const SerialPort& port)
{
    const Problem problem = ComPortProblem(port);
    return QString::fromStdString(problem.text + ": " + problem.details);
}

QString Title(const CloneImage& image, int address)
{
    const QString number = QString::fromStdString(HexAddress(address));
    const QString name = QString::fromStdString(BlockName(image, address));
    return name.isEmpty() ? number : number + QStringLiteral(": ") + name;
}

/// The receiver's line, or its cable, repeated the command, and nothing followed.
bool IsOnlyEcho(int address, const std::string& received)
{
    const std::string command = ReadCommand(address);
    return received.starts_with(command) &&
           received.find_first_not_of("\r\n", command.size()) == std::string::npos;
}

QString ReceivedLine(int address, const RawReply& reply)
{
    const bool isAnswered = !reply.received.empty() && !IsOnlyEcho(address, reply.received);
    const QString line = isAnswered ? Translate("Reply after %1 ms: %2")
                                    : Translate("Received until the time-out after %1 ms: %2");
    const QString received =
        reply.received.empty() ? Translate("(nothing)") : QString::fromStdString(VisibleText(reply.received));
    return line.arg(Milliseconds(reply.took), received);
}

QString WhyNoFrame(int address, const RawReply& reply)
{
    if (reply.received.empty())
        return Translate("Nothing came back. Check the cable, the port, and that the receiver is on.");
    if (IsOnlyEcho(address, reply.received))
        return Translate("The receiver did not answer: only the echo of the command came back.");
    return reply.outcome == ReplyOutcome::TooShort
               ? Translate("The reply is too short: a whole one ends with 36 characters.")
               : Translate("The reply is garbled: it does not end with a line of 32 characters.");
}

QStringList MeaningLines(int address, const RawReply& reply)
{
    if (!HoldsFields(address))
        return {};
    QStringList lines;
    for (const BlockField& field : BlockFields(address, reply.block))
        lines << QString::fromStdString(field.name + ": " + field.text);
    return lines.isEmpty() ? QStringList{Translate("An empty row.")} : lines;
}

}  // namespace

QString RawReplyText(const CloneImage& image, int address, const RawReply& reply, const SerialPort& port)
{
    QStringList lines = {Title(image, address)};
    if (IsPortFailure(reply.outcome))
        return (lines << PortFailureText(port)).join(QLatin1Char('\n'));
    lines << ReceivedLine(address, reply);
    lines << (reply.IsFrame() ? MeaningLines(address, reply) : QStringList{WhyNoFrame(address, reply)});
    return lines.join(QLatin1Char('\n'));
}

QString LinkTestText(const LinkTestResult& result, const SerialPort& port)
{
    const QString failure = result.hasPortFailed ? PortFailureText(port) + QLatin1Char('\n') : QString();
    const QString counts = Translate("%1 reads, %2 errors.").arg(result.reads).arg(result.errors);
    if (result.reads == result.errors)
        return failure + counts;
    return failure + counts + QLatin1Char(' ') +
           Translate("Round trip: lowest %1 ms, median %2 ms, highest %3 ms.")
               .arg(Milliseconds(result.lowest), Milliseconds(result.median), Milliseconds(result.highest));
}

}  // namespace rqm5
