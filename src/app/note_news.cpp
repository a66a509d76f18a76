#include "app/note_news.h"

#include <algorithm>

#include "files/safe_notes.h"

namespace rqm5 {
namespace {

const QString kKey = QStringLiteral("notes");

}  // namespace

NoteNews::NoteNews(Document& document, const MemoryPage& page, MessageBar& bar)
    : QObject(&bar), document_(document), bar_(bar)
{
    connect(&page, &MemoryPage::NotesEntered, this, &NoteNews::Tell);
    connect(&document, &Document::Changed, this, &NoteNews::Look);
    connect(&document, &Document::Replaced, this, &NoteNews::Forget);
    connect(&bar, &MessageBar::Closed, this, [this](const QString& key) {
        if (key == kKey)
            rows_.clear();
    });
}

void NoteNews::Tell(const std::vector<int>& rows)
{
    rows_.insert(rows_.end(), rows.begin(), rows.end());
    std::ranges::sort(rows_);
    rows_.erase(std::unique(rows_.begin(), rows_.end()), rows_.end());
    Look();
}

void NoteNews::Look()
{
    if (rows_.empty())
        return;
    std::erase_if(rows_, [this](int row) { return NoteSurvives(document_.Image().MemData(row).note); });
    if (rows_.empty()) {
        bar_.Withdraw(kKey);
        return;
    }
    const auto text = Counted(static_cast<int>(rows_.size()),
                              MESSAGE("A comma or quotes in a note will not survive a save."),
                              MESSAGE("Notes whose comma or quotes will not survive a save: %1"));
    bar_.Show({kKey, text, {{MESSAGE("Use ; and '"), [this] { MakeSafe(); }}}});
}

void NoteNews::Forget()
{
    rows_.clear();
    bar_.Withdraw(kKey);
}

void NoteNews::MakeSafe()
{
    document_.Edit(MESSAGE("Use ; and ' in notes"), [rows = rows_](CloneImage& image) {
        for (const int row : rows)
            image.MemData(row).note = SafeNote(image.MemData(row).note);
    });
}

}  // namespace rqm5
