#include "app/compare_commands.h"

#include <QFileInfo>

#include "app/write_changes_dialog.h"
#include "files/file_store.h"
#include "language/language.h"
#include "ui/error_prompt.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

Message ShortTime(const QDateTime& time)
{
    return Language::OfProgram().ShortTime(time).toStdString();
}

/// A change of nothing but one place, for going there.
ImageChange PlaceOf(ItemId id)
{
    ImageChange change;
    switch (id.kind) {
        case ItemKind::MemoryRow:
            change.MemEnable.push_back({id.index, false, true});
            break;
        case ItemKind::VfoRow:
            change.VFONotes.push_back({id.index, {}, {}});
            break;
        case ItemKind::BankSize:
            change.BankSize.push_back({id.index, 0, 0});
            break;
        case ItemKind::BankLink:
            change.BankLink.push_back({id.index, false, true});
            break;
        case ItemKind::Setting:
            change.Settings.push_back({id.index, 0, 0});
            break;
    }
    return change;
}

}  // namespace

CompareCommands::CompareCommands(Document& document, RadioLink& link, TransferCommands& transfers,
                                 Dialogs& dialogs, Pages& pages, QWidget& window)
    : QObject(&window),
      document_(document),
      link_(link),
      transfers_(transfers),
      dialogs_(dialogs),
      pages_(pages),
      window_(window)
{
}

void CompareCommands::MakeWindow()
{
    compare_ = new dlgCompare(document_, dialogs_, &window_);
    connect(compare_, &dlgCompare::FileWanted, this, &CompareCommands::CompareWithFile);
    connect(compare_, &dlgCompare::BackupWanted, this, &CompareCommands::BackupWanted);
    connect(compare_, &dlgCompare::LastReadWanted, this, &CompareCommands::CompareWithLastRead);
    connect(compare_, &dlgCompare::ReceiverWanted, this, &CompareCommands::CompareWithReceiver);
    connect(compare_, &dlgCompare::PlaceChosen, this, &CompareCommands::GoTo);
    connect(&transfers_, &TransferCommands::Started, compare_,
            [this] { compare_->SetTransferRunning(true); });
    connect(&transfers_, &TransferCommands::Ended, compare_, [this] {
        compare_->SetTransferRunning(false);
        compare_->SetLastRead(transfers_.LastFullRead().has_value());
    });
    // The bar of a transfer and its Cancel, at the bottom of the main window, stay in sight.
    constexpr int kBarHeight = 120;
    compare_->resize(compare_->size().boundedTo(QSize(compare_->width(), window_.height() - kBarHeight)));
    compare_->move(window_.frameGeometry().topLeft());
}

void CompareCommands::mnuToolsCompare_Click()
{
    if (compare_ == nullptr)
        MakeWindow();
    compare_->SetLastRead(transfers_.LastFullRead().has_value());
    compare_->Present();
}

void CompareCommands::CompareWith(dlgCompare::Source source)
{
    mnuToolsCompare_Click();
    compare_->ShowSource(std::move(source));
}

void CompareCommands::CompareWithFile()
{
    const QString path = dialogs_.ChooseFile(compare_, FileChoice::OpenClone, document_.FileName());
    if (path.isEmpty())
        return;
    CloneImage image = document_.Image();
    if (const auto problem = LoadCloneFile(path, image)) {
        dialogs_.Ask(compare_, ErrorPrompt(*problem));
        return;
    }
    const QFileInfo file(path);
    const std::string name = VisibleText(file.fileName()).toStdString();
    CompareWith({name,
                 [name, saved = file.lastModified()] {
                     return Message(MESSAGE("Other side: the file %1, saved %2"), {name, ShortTime(saved)});
                 },
                 std::move(image), ComparedParts()});
}

void CompareCommands::CompareWithLastRead()
{
    link_.Knowledge().CatchUp();
    const auto last = transfers_.LastFullRead();
    if (!last)
        return compare_->SetLastRead(false);
    const auto title = [time = last->time, isOfParts = last->isOfParts,
                        age = AgeText(last->time, QDateTime::currentDateTime())] {
        return isOfParts
                   ? Message(MESSAGE("Other side: the receiver as it was read or written since %1, %2"),
                             {ShortTime(time), age})
                   : Message(MESSAGE("Other side: the receiver as it was read at %1"), {ShortTime(time)});
    };
    CompareWith({MESSAGE("the last read"), title, last->image, kReceiverParts});
}

void CompareCommands::CompareWithReceiver()
{
    CloneImage image;
    if (transfers_.ReadBeside(image) != TransferResult::Done)
        return;
    CompareWith({MESSAGE("the receiver"),
                 [time = transfers_.LastFullRead()->time] {
                     return Message(MESSAGE("Other side: the receiver, read just now (%1)"),
                                    {ShortTime(time)});
                 },
                 std::move(image), kReceiverParts});
}

void CompareCommands::GoTo(ItemId id)
{
    // While a transfer runs the pages are off.
    if (!transfers_.IsRunning())
        pages_.GoTo(PlaceOf(id));
}

}  // namespace rqm5
