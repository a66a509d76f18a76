#include "simulator/simulated_receiver.h"

#include <algorithm>
#include <utility>

namespace rqm5 {
namespace {

using std::chrono::milliseconds;

constexpr std::string_view kStart = "QT~F";
constexpr std::size_t kAddressDigits = 4;
constexpr std::size_t kVerbAt = kStart.size() + kAddressDigits;
constexpr std::size_t kReadLength = kVerbAt + 1;
constexpr std::size_t kWriteLength = kReadLength + kBlockChars;
/// Noise without a CR must not fill the memory.
constexpr std::size_t kLongestLine = 256;
constexpr std::size_t kLineEndLength = 2;
constexpr char kRefusal[] = "\r\nNG\r\n";
constexpr milliseconds kPieceGap{15};

/// \return -1 when the four characters are no upper-case hex digits
int AddressIn(std::string_view command)
{
    int address = 0;
    for (const char digit : command.substr(kStart.size(), kAddressDigits)) {
        const auto value = std::string_view("0123456789ABCDEF").find(digit);
        if (value == std::string_view::npos)
            return -1;
        address = address * 16 + static_cast<int>(value);
    }
    return address;
}

std::vector<ReplyPiece> InPieces(const std::string& text)
{
    const std::size_t third = text.size() / 3;
    return {{milliseconds(0), text.substr(0, third)},
            {kPieceGap, text.substr(third, third)},
            {kPieceGap, text.substr(2 * third)}};
}

}  // namespace

std::vector<Answer> SimulatedReceiver::Receive(std::string_view characters)
{
    std::vector<Answer> answers;
    for (const char c : characters) {
        pending_ += c;
        if (c == '\r')
            answers.push_back(AnswerTo(std::exchange(pending_, {})));
        else if (pending_.size() > kLongestLine)
            pending_.erase(0, pending_.size() - kWriteLength);
    }
    return answers;
}

Answer SimulatedReceiver::AnswerTo(std::string line)
{
    Answer answer{{}, line.size(), line, {}};
    line.pop_back();
    const std::size_t start = line.rfind(kStart);
    if (start == std::string::npos)
        return answer;
    answer.command = line.substr(start);
    const FaultKind fault = faults_.Next();
    if (fault == FaultKind::Silent || fault == FaultKind::HangUp) {
        answer.echo.clear();
        answer.hangsUp = fault == FaultKind::HangUp;
        return answer;
    }
    if (fault == FaultKind::Stall)
        answer.stall = stallTime_;
    const std::string reply = Obey(answer.command, fault == FaultKind::Ng);
    if (!reply.empty())
        answer.reply = {{milliseconds(0), reply}};
    Spoil(fault, answer);
    return answer;
}

/// \return the reply, empty when the command is none that the receiver knows
std::string SimulatedReceiver::Obey(const std::string& command, bool refuses)
{
    const int address = AddressIn(command);
    const bool reads = command.size() == kReadLength && command[kVerbAt] == 'R';
    const bool writes = command.size() == kWriteLength && command[kVerbAt] == 'W';
    if (address < 0 || (!reads && !writes))
        return {};
    if (refuses)
        return kRefusal;
    if (reads)
        return "\r\n" + memory_.At(address).String() + "\r\n";
    memory_.At(address) = MemoryBlock(std::string_view(command).substr(kReadLength));
    return "\r\nOK\r\n";
}

void SimulatedReceiver::Spoil(FaultKind fault, Answer& answer)
{
    if (fault == FaultKind::NoEcho)
        answer.echo.clear();
    if (answer.reply.empty())
        return;
    ReplyPiece& piece = answer.reply.front();
    switch (fault) {
        case FaultKind::Drop:
            answer.reply.clear();
            break;
        case FaultKind::Cut:
            piece.text.resize(piece.text.size() / 2);
            break;
        case FaultKind::Garble:
            piece.text.replace(0, 2, "~\x7F");
            break;
        case FaultKind::Pieces:
            answer.reply = InPieces(piece.text);
            break;
        case FaultKind::Late:
            piece.pause = lateDelay_;
            answer.isDeaf = true;
            break;
        case FaultKind::Flip:
        case FaultKind::Smear:
            if (piece.text.size() > kBlockChars)
                SpoilDigit(piece.text, fault == FaultKind::Smear);
            break;
        case FaultKind::Noise:
            piece.text.insert(0, Noise());
            break;
        default:
            break;
    }
}

void SimulatedReceiver::SpoilDigit(std::string& frame, bool isLost)
{
    const int place = faults_.Random(static_cast<int>(kBlockChars));
    char& digit = frame.at(kLineEndLength + static_cast<std::size_t>(place));
    const char other = digit == '0' ? '1' : '0';
    digit = isLost ? '?' : other;
}

/// Some random characters, line ends excepted.
std::string SimulatedReceiver::Noise()
{
    constexpr int kMost = 12;
    constexpr int kFirstPrintable = ' ';
    std::string noise;
    for (int left = 1 + faults_.Random(kMost); left > 0; --left)
        noise += static_cast<char>(kFirstPrintable + faults_.Random(256 - kFirstPrintable));
    return noise;
}

}  // namespace rqm5
