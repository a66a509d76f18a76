#pragma once

#include "app/current_file.h"
#include "app/file_commands.h"
#include "ui/message_bar.h"

namespace rqm5 {

/// Tells in the message bar that another program has changed or removed the current file, and offers to load
/// it again while nothing would be lost by that.
class FileNews : public QObject
{
    Q_OBJECT

  public:
    FileNews(const Document& document, CurrentFile& file, FileCommands& commands, MessageBar& bar);

  private:
    void Tell(CurrentFile::State state);
    void Closed(const QString& key);

    const Document& document_;
    CurrentFile& file_;
    FileCommands& commands_;
    MessageBar& bar_;
    FileMark closedFor_;  ///< the contents whose message somebody has closed
};

}  // namespace rqm5
