#include "cli/receiver_session.h"

#include <ostream>

#include "cli/clone_files.h"
#include "cli/values.h"
#include "link/com_ports.h"
#include "link/line_notes.h"
#include "link/port_file.h"

namespace rqm5 {
namespace {

QString DeviceOf(const Arguments& arguments)
{
    const std::string port = arguments.Value("--port");
    if (port.empty())
        return DeviceOfComPort(ReadPortFile(PortFilePath(QCoreApplication::applicationDirPath())));
    const auto number = ReadNumberIn(port, 1, kComPorts);
    return number ? DeviceOfComPort(*number) : PathOf(port);
}

}  // namespace

EventLoopHost::EventLoopHost()
{
    if (QCoreApplication::instance() == nullptr)
        application_.emplace(argumentCount_, argumentList_);
}

ReceiverSession::ReceiverSession(const Arguments& arguments, Console& console)
    : console_(console), progress_(console), port_(DeviceOf(arguments)), link_(port_), interrupt_([this] {
          progress_.Cancel();
          link_.Cancel();
      })
{
}

ReceiverSession::~ReceiverSession()
{
    progress_.Clear();
    if (const std::string note = RepeatNote(progress_.Repeated()); !note.empty())
        console_.err << note << '\n';
}

Status ReceiverSession::Finish(TransferResult result)
{
    progress_.Clear();
    if (result == TransferResult::Cancelled)
        console_.err << "Cancelled.\n";
    return result == TransferResult::Done ? Status::Done : Status::Failed;
}

}  // namespace rqm5
