#pragma once

#include <QObject>
#include <vector>

#include "document/document.h"
#include "memory/memory_page.h"
#include "ui/message_bar.h"

namespace rqm5 {

/// Says in the message bar at once when a note was typed or pasted into the table that a clone file does not
/// bring back, and offers the form that it does, until those notes are changed.
class NoteNews : public QObject
{
    Q_OBJECT

  public:
    NoteNews(Document& document, const MemoryPage& page, MessageBar& bar);

  private:
    void Tell(const std::vector<int>& rows);
    void Look();
    void Forget();
    void MakeSafe();

    Document& document_;
    MessageBar& bar_;
    std::vector<int> rows_;  ///< memory rows with such a note, which the bar speaks of
};

}  // namespace rqm5
