#include "app/file_news.h"

#include <QFileInfo>

#include "files/file_kind.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

const QString kKey = QStringLiteral("file");

}  // namespace

FileNews::FileNews(const Document& document, CurrentFile& file, FileCommands& commands, MessageBar& bar)
    : QObject(&bar), document_(document), file_(file), commands_(commands), bar_(bar)
{
    connect(&file, &CurrentFile::Seen, this, &FileNews::Tell);
    connect(&bar, &MessageBar::Closed, this, &FileNews::Closed);
    // What is offered depends on whether there are unsaved changes.
    connect(&document, &Document::StateChanged, this, [this] {
        if (bar_.Has(kKey))
            Tell(file_.Look());
    });
}

void FileNews::Tell(CurrentFile::State state)
{
    const QString& path = document_.FileName();
    if (state == CurrentFile::State::AsKnown) {
        closedFor_.clear();
        bar_.Withdraw(kKey);
        return;
    }
    const FileMark mark = MarkOfFile(path) + '.';  // a removed file has one of its own, too
    if (mark == closedFor_)
        return;
    const Message name = VisibleText(QFileInfo(path).fileName()).toStdString();
    MessageBar::Notice notice{kKey, {}, {}};
    if (state == CurrentFile::State::Removed) {
        notice.text = {MESSAGE("%1 was removed or renamed by another program. Save will ask first."), {name}};
    } else if (document_.DataChanged()) {
        notice.text = {
            MESSAGE("%1 was changed by another program. You have unsaved changes; Save will ask first."),
            {name}};
    } else {
        notice.text = {MESSAGE("%1 was changed by another program."), {name}};
        if (KindOf(path) == FileKind::Clone)
            notice.buttons = {{MESSAGE("&Load Again"), [this] { commands_.LoadAgain(); }}};
    }
    bar_.Show(std::move(notice));
}

void FileNews::Closed(const QString& key)
{
    if (key == kKey)
        closedFor_ = MarkOfFile(document_.FileName()) + '.';
}

}  // namespace rqm5
