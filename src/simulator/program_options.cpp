#include "simulator/program_options.h"

#include <QCommandLineParser>
#include <limits>

#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr int kUsualBaud = 9600;
constexpr int kHighestBaud = 4'000'000;
constexpr int kUsualStall = 700;
constexpr int kLongestStall = 60'000;

void AddOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("A simulated RQ-M5 receiver in clone mode on a pseudo-terminal, whose device is the "
                       "first line\nprinted. It runs until it is interrupted (Ctrl-C, SIGTERM, SIGHUP)."));
    const auto add = [&parser](const char* name, const char* value, const std::string& description) {
        parser.addOption(
            {QString::fromLatin1(name), QString::fromStdString(description), QString::fromLatin1(value)});
    };
    add("memory", "FILE.RQ5", "Fill the memory from a clone file (else some channels of every kind).");
    add("save", "FILE.RQ5", "Keep the memory in a clone file at the end, with the notes of --memory.");
    add("region", "0..3", "Model region of the memory that is not from a file.");
    add("link", "PATH", "Give the device a fixed name, a link that is removed at the end.");
    add("baud", "N", "Pace of the line in bits a second (9600); 0 takes no time.");
    add("fault", "KIND[:COUNT|:PROBABILITY][:after=N]",
        "Do something wrong with COUNT commands (1), or with each at a PROBABILITY (0.1, 10%), after N good "
        "ones. May be repeated. Kinds: " +
            FaultKinds() + ".");
    add("stall-ms", "N", "How long a stall lasts (700).");
    add("seed", "N", "Seed of what happens at random (1).");
    add("log", "FILE", "Append every command received to a file.");
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")});
}

/// Reads an option that is a whole number. \return false when it is none or out of range
bool ReadNumber(const QCommandLineParser& parser, const QString& name, int highest, int& number)
{
    if (!parser.isSet(name))
        return true;
    bool isNumber = false;
    number = parser.value(name).toInt(&isNumber);
    return isNumber && number >= 0 && number <= highest;
}

QString ReadFaults(const QStringList& texts, std::vector<Fault>& faults)
{
    for (const QString& text : texts) {
        const auto fault = ParseFault(text.toStdString());
        if (!fault)
            return QStringLiteral("'%1' is no fault; the kinds are %2")
                .arg(text, QString::fromStdString(FaultKinds()));
        faults.push_back(*fault);
    }
    return {};
}

QString ReadOptions(const QCommandLineParser& parser, ProgramOptions& options)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("unexpected '%1'").arg(parser.positionalArguments().constFirst());
    options.memory = parser.value(QStringLiteral("memory"));
    options.save = parser.value(QStringLiteral("save"));
    options.log = parser.value(QStringLiteral("log"));
    options.session.link = parser.value(QStringLiteral("link")).toStdString();
    options.session.baud = kUsualBaud;
    int seed = 1;
    int stall = kUsualStall;
    if (!ReadNumber(parser, QStringLiteral("region"), kRegions - 1, options.region))
        return QStringLiteral("--region is 0 to 3");
    if (!ReadNumber(parser, QStringLiteral("baud"), kHighestBaud, options.session.baud))
        return QStringLiteral("--baud is 0 to %1").arg(kHighestBaud);
    if (!ReadNumber(parser, QStringLiteral("seed"), std::numeric_limits<int>::max(), seed))
        return QStringLiteral("--seed is a number");
    if (!ReadNumber(parser, QStringLiteral("stall-ms"), kLongestStall, stall))
        return QStringLiteral("--stall-ms is 0 to %1").arg(kLongestStall);
    options.session.stallTime = std::chrono::milliseconds(stall);
    options.session.seed = static_cast<unsigned>(seed);
    return ReadFaults(parser.values(QStringLiteral("fault")), options.session.faults);
}

}  // namespace

ParsedOptions ParseProgramOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    AddOptions(parser);
    ParsedOptions parsed;
    if (!parser.parse(arguments))
        parsed.error = parser.errorText();
    else if (parser.isSet(QStringLiteral("help")))
        parsed.answer = parser.helpText();
    else if (parser.isSet(QStringLiteral("version")))
        parsed.answer = QStringLiteral("rq-m5-sim " RQM5_VERSION "\n");
    else
        parsed.error = ReadOptions(parser, parsed.options);
    return parsed;
}

}  // namespace rqm5
