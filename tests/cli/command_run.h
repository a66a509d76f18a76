#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

struct RunResult
{
    int status;
    std::string out;
    std::string err;
};

using Words = std::vector<std::string>;

/// Starts the real program.
void StartProgram(QProcess& process, const Words& words);

/// Waits for its end.
RunResult FinishProgram(QProcess& process);

RunResult RunProgramFile(const Words& words);
RunResult RunShell(const std::string& command);

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

std::string Bytes(const std::string& path);
void PutBytes(const std::string& path, const std::string& bytes);

/// A CSV record for an enabled channel.
std::string CsvRecord(const std::string& group, int channel, const std::string& frequency,
                      const std::string& note);

bool Has(const std::string& text, const std::string& part);

}  // namespace rqm5
