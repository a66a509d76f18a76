#pragma once

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace rqm5 {

struct RunResult
{
    int status;
    std::string out;
    std::string err;
};

using Words = std::vector<std::string>;

/// Starts the real program.
inline void StartProgram(QProcess& process, const Words& words)
{
    QStringList arguments;
    for (const std::string& word : words)
        arguments << QString::fromStdString(word);
    process.start(QStringLiteral(RQM5_PROGRAM), arguments);
}

/// Waits for its end.
inline RunResult FinishProgram(QProcess& process)
{
    process.waitForFinished(-1);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

inline RunResult RunProgramFile(const Words& words)
{
    QProcess process;
    StartProgram(process, words);
    return FinishProgram(process);
}

/// A folder for the files of one test.
class Folder
{
  public:
    std::string operator/(const std::string& name) const
    {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }

  private:
    QTemporaryDir folder_;
};

inline std::string Bytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void PutBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A CSV record for an enabled channel.
inline std::string CsvLineOf(const std::string& group, int channel, const std::string& frequency,
                             const std::string& note)
{
    return "\"RQ-M5\",\"" + group + "\",\"" + std::to_string(channel) + "\",\"" + frequency +
           "\",\"AM\",\"5KHz\",\"OFF\",\"0\",\"300Hz\",\"67.0Hz\",\"OFF\",\"0\",\"" + note +
           "\",\"#FALSE#\",#TRUE#\r\n";
}

inline bool Has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

}  // namespace rqm5
