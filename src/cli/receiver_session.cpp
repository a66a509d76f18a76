#include "cli/receiver_session.h"

#include <QFileInfo>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/values.h"
#include "image/display_text.h"
#include "link/com_ports.h"
#include "link/knowledge_file.h"
#include "link/line_notes.h"
#include "link/port_file.h"

namespace rqm5 {
namespace {

int NumberFromFile(const Arguments& arguments)
{
    return arguments.Has("--port") ? 0 : ReadPortFile(PortFilePath(QCoreApplication::applicationDirPath()));
}

/// A device or link of the folder that the command runs in; a bare name is one of the system's first.
QString DeviceHere(const QString& name)
{
    const bool isSystems = !name.contains(QLatin1Char('/')) && QFileInfo::exists(DeviceNode(name));
    return !isSystems && QFileInfo::exists(name) ? QFileInfo(name).absoluteFilePath() : name;
}

QString DeviceOf(const Arguments& arguments, int numberFromFile)
{
    const std::string port = arguments.Value("--port");
    const int number = numberFromFile > 0 ? numberFromFile : ReadComNumber(port).value_or(0);
    return number > 0 ? DeviceOfComPort(number) : DeviceHere(PathOf(port));
}

}  // namespace

EventLoopHost::EventLoopHost()
{
    if (QCoreApplication::instance() == nullptr)
        application_.emplace(argumentCount_, argumentList_);
}

ReceiverSession::ReceiverSession(const Arguments& arguments, Console& console)
    : console_(console),
      number_(NumberFromFile(arguments)),
      progress_(console),
      port_(DeviceOf(arguments, number_)),
      link_(port_),
      signals_(EndSignals::Ignored::OnlyHangUpStaysIgnored, [this](int status) {
          isCtrlC_ = status == kEndedByCtrlC;
          progress_.Cancel();
          link_.Cancel();
      })
{
    link_.Knowledge().KeepIn(CacheFolder());
    if (console.isVerbose)
        QObject::connect(&link_, &RadioLink::Exchanged, &link_,
                         [this](const std::string& command, bool /*portFailed*/) { TellExchange(command); });
}

void ReceiverSession::TellExchange(const std::string& command)
{
    progress_.Clear();
    console_.err << VisibleText(command) << " -> " << VisibleText(link_.LastReceived()) << " ("
                 << link_.LastDuration().count() / 1000 << " ms)\n";
}

void ReceiverSession::TellPort()
{
    if (number_ == 0)
        return;
    const std::string device = port_.Device().toStdString();
    const std::string name = "COM " + std::to_string(number_);
    if (!console_.isQuiet)
        Say(console_, {MESSAGE("Port: %1, %2 (without --port, that of RQ-M5.ini)"),
                       {name, device.empty() ? Message(MESSAGE("no device")) : Message(device)}});
    progress_.NamePort(name, device);
}

ReceiverSession::~ReceiverSession()
{
    link_.Knowledge().Save();
    progress_.Clear();
    if (const Message note = RepeatNote(progress_.Repeated()); !note.empty())
        Say(console_, note);
}

Status ReceiverSession::Finish(TransferResult result)
{
    progress_.Clear();
    if (result == TransferResult::Cancelled)
        Say(console_, MESSAGE("Cancelled."));
    if (result == TransferResult::Cancelled && isCtrlC_)
        return Status::Interrupted;
    return result == TransferResult::Done ? Status::Done : Status::Failed;
}

std::chrono::seconds ReceiverSession::Taken() const
{
    return std::chrono::round<std::chrono::seconds>(std::chrono::steady_clock::now() - begin_);
}

void ReceiverSession::Close(const Message& note)
{
    TellEnd(console_, note);
}

}  // namespace rqm5
