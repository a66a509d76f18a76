#include "app/write_changes_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "image/display_text.h"
#include "language/language.h"
#include "language/translated.h"
#include "link/change_writer.h"

namespace rqm5 {
namespace {

enum ChangeColumn { kWhat, kHeld, kWanted };

QString Text(const Message& text)
{
    return QString::fromStdString(VisibleText(Said(text)));
}

}  // namespace

Message AgeText(const QDateTime& since, const QDateTime& now)
{
    constexpr qint64 kMinute = 60;
    constexpr qint64 kHour = 60 * kMinute;
    constexpr qint64 kDay = 24 * kHour;
    const qint64 seconds = since.secsTo(now);
    const auto ago = [seconds](qint64 unit, const char* one, const char* many) {
        return Counted(seconds < 2 * unit ? 1 : static_cast<int>(seconds / unit), one, many);
    };
    if (seconds < kMinute)
        return MESSAGE("less than a minute ago");
    if (seconds < kHour)
        return ago(kMinute, MESSAGE("a minute ago"), MESSAGE("%1 minutes ago"));
    if (seconds < kDay)
        return ago(kHour, MESSAGE("an hour ago"), MESSAGE("%1 hours ago"));
    return ago(kDay, MESSAGE("a day ago"), MESSAGE("%1 days ago"));
}

dlgWriteChanges::dlgWriteChanges(const CloneImage& image, const ChangePlan& plan, const QDateTime& since,
                                 QWidget* parent)
    : QDialog(parent),
      checked_(plan.BlocksToCheck().size()),
      written_(plan.Wanted().size()),
      verified_(ExpectedAfterChanges(image, plan).size()),
      lblKnown_(new QLabel(this)),
      lblTime_(new QLabel(this)),
      chkBackup_(new QCheckBox(tr("Keep a &backup of what is replaced"), this)),
      chkVerify_(new QCheckBox(tr("&Verify afterwards"), this))
{
    setObjectName(QStringLiteral("dlgWriteChanges"));
    setWindowTitle(tr("Write Changes"));
    lblKnown_->setObjectName(QStringLiteral("lblKnown"));
    lblTime_->setObjectName(QStringLiteral("lblTime"));
    chkBackup_->setObjectName(QStringLiteral("chkBackup"));
    chkVerify_->setObjectName(QStringLiteral("chkVerify"));
    lblKnown_->setText(tr("The receiver as it was read or written since %1, %2. Each block is read once more "
                          "before the first one is written.")
                           .arg(Language::OfProgram().ShortTime(since.toLocalTime()),
                                Translated(AgeText(since, QDateTime::currentDateTimeUtc()))));
    lblKnown_->setWordWrap(true);
    lblTime_->setWordWrap(true);
    Build(ListChanges(image, plan));
    for (QCheckBox* box : {chkBackup_, chkVerify_})
        box->setChecked(true);
    connect(chkVerify_, &QCheckBox::toggled, this, &dlgWriteChanges::ShowTime);
    ShowTime();
}

void dlgWriteChanges::Build(const std::vector<RowChange>& changes)
{
    constexpr int kLetters = 100;
    constexpr int kLines = 24;
    auto* list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("lstChanges"));
    list->setAccessibleName(tr("What is written"));
    list->setHeaderLabels({tr("Row and field"), tr("Receiver"), tr("Will be")});
    list->setUniformRowHeights(true);
    for (const RowChange& change : changes) {
        auto* row = new QTreeWidgetItem(list, {Text(change.label)});
        for (const FieldChange& field : change.fields)
            new QTreeWidgetItem(row, {Text(field.name), Text(field.from), Text(field.to)});
    }
    list->expandAll();
    const int letter = fontMetrics().averageCharWidth();
    list->setColumnWidth(kWhat, letter * kLetters * 4 / 9);
    list->setColumnWidth(kHeld, letter * kLetters * 2 / 9);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* write = buttons->button(QDialogButtonBox::Ok);
    write->setObjectName(QStringLiteral("OKButton"));
    write->setText(tr("&Write"));
    write->setEnabled(written_ > 0);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblKnown_);
    column->addWidget(list, 1);
    column->addWidget(lblTime_);
    column->addWidget(chkBackup_);
    column->addWidget(chkVerify_);
    column->addWidget(buttons);
    resize(letter * kLetters, fontMetrics().height() * kLines);
    (written_ > 0 ? write : buttons->button(QDialogButtonBox::Cancel))->setFocus();
}

void dlgWriteChanges::ShowTime()
{
    const QString time = Translated(AboutTime(checked_ + written_ + (Verifies() ? verified_ : 0)));
    if (written_ == 0)
        lblTime_->setText(tr("The receiver holds all of it already. There is nothing to write."));
    else if (written_ == 1)
        lblTime_->setText(tr("1 block is written, %1.").arg(time));
    else
        lblTime_->setText(tr("%1 blocks are written, %2.").arg(written_).arg(time));
}

}  // namespace rqm5
