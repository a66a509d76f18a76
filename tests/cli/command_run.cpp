#include "cli/command_run.h"

#include <fstream>
#include <iterator>

namespace rqm5 {

void StartProgram(QProcess& process, const Words& words)
{
    QStringList arguments;
    for (const std::string& word : words)
        arguments << QString::fromStdString(word);
    process.start(QStringLiteral(RQM5_PROGRAM), arguments);
}

RunResult FinishProgram(QProcess& process)
{
    process.waitForFinished(-1);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

RunResult RunProgramFile(const Words& words)
{
    QProcess process;
    StartProgram(process, words);
    return FinishProgram(process);
}

RunResult RunShell(const std::string& command)
{
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), QString::fromStdString(command)});
    return FinishProgram(process);
}

std::string Bytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void PutBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string CsvRecord(const std::string& group, int channel, const std::string& frequency,
                      const std::string& note)
{
    return "\"RQ-M5\",\"" + group + "\",\"" + std::to_string(channel) + "\",\"" + frequency +
           "\",\"AM\",\"5KHz\",\"OFF\",\"0\",\"300Hz\",\"67.0Hz\",\"OFF\",\"0\",\"" + note +
           "\",\"#FALSE#\",#TRUE#\r\n";
}

bool Has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

}  // namespace rqm5
