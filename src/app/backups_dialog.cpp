#include "app/backups_dialog.h"

#include <QBoxLayout>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QScreen>

#include "files/file_store.h"
#include "language/language.h"
#include "language/translated.h"
#include "memory/bank_layout.h"
#include "settings/setting_texts.h"
#include "ui/elided_label.h"
#include "ui/form_texts.h"
#include "ui/plain_text.h"
#include "ui/row_list.h"

namespace rqm5 {
namespace {

enum ListColumn { kTime, kHolds, kModel, kRows, kDiffers, kListColumns };

constexpr int kIndexRole = Qt::UserRole;
constexpr QSize kWindowFrame(8, 36);

int ChannelsIn(const CloneImage& image, RowRange rows)
{
    int channels = 0;
    for (int row = rows.first; row <= rows.Last(); ++row)
        channels += image.MemData(row).HasChannel() ? 1 : 0;
    return channels;
}

/// A path below the user's home as a shell writes it.
QString ShortPath(const QString& path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size())
                                 : QDir::toNativeSeparators(path);
}

QString DifferencesText(const DifferenceCounts& counts)
{
    QStringList parts;
    if (counts.rows > 0)
        parts << dlgBackups::tr("rows: %1").arg(counts.rows);
    if (counts.vfoBands > 0)
        parts << dlgBackups::tr("VFO bands: %1").arg(counts.vfoBands);
    if (counts.bankLayout > 0)
        parts << dlgBackups::tr("bank layout");
    if (counts.settings > 0)
        parts << dlgBackups::tr("settings: %1").arg(counts.settings);
    return parts.isEmpty() ? dlgBackups::tr("nothing") : parts.join(QStringLiteral(", "));
}

}  // namespace

Message ScopeText(const TransferScope& scope)
{
    if (scope.settings)
        return scope.memory ? MESSAGE("Everything") : MESSAGE("Settings and VFO bands");
    if (!scope.memory)
        return MESSAGE("Bank sizes and links");
    return scope.selector == kSelectAll ? Message(MESSAGE("All channels")) : SelectorText(scope.selector);
}

dlgBackups::dlgBackups(const CloneImage& open, const QString& folder, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), open_(open), folder_(folder), dialogs_(dialogs), lstBackups_(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("dlgBackups"));
    setWindowTitle(tr("Backups"));
    Build();
    connect(lstBackups_, &QTreeWidget::itemSelectionChanged, this, &dlgBackups::ShowButtons);
    connect(lstBackups_, &QTreeWidget::itemDoubleClicked, this, [this] { Choose(Action::Compare); });
    connect(&reading_, &QTimer::timeout, this, &dlgBackups::ShowNext);
    ListBackups();
    SetFormTexts(*this);
    lstBackups_->setFocus();
}

void dlgBackups::Build()
{
    lstBackups_->setObjectName(QStringLiteral("lstBackups"));
    lstBackups_->setAccessibleName(tr("Backups"));
    lstBackups_->setHeaderLabels(
        {tr("Kept"), tr("Holds"), tr("Model"), tr("Channels"), tr("What differs from the open image")});
    lstBackups_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstBackups_->setRootIsDecorated(false);
    lstBackups_->setUniformRowHeights(true);
    lstBackups_->setAllColumnsShowFocus(true);
    lstBackups_->setAlternatingRowColors(true);
    const int letter = fontMetrics().averageCharWidth();
    const int widths[] = {25, 26, 12, 11};
    for (int i = 0; i < kDiffers; ++i)
        lstBackups_->setColumnWidth(i, letter * widths[i]);
    auto* folder = new ElidedLabel(Qt::ElideMiddle, this);
    folder->setTextFormat(Qt::PlainText);
    folder->setText(tr("Folder: %1").arg(VisibleText(ShortPath(folder_))));
    auto* column = new QVBoxLayout(this);
    column->addWidget(folder);
    column->addWidget(lstBackups_, 1);
    column->addWidget(BuildLimit());
    column->addLayout(BuildButtons());
    constexpr int kLetters = 130;
    constexpr int kLines = 24;
    resize(QSize(letter * kLetters, fontMetrics().height() * kLines)
               .boundedTo(screen()->availableSize() - kWindowFrame));
}

QWidget* dlgBackups::BuildLimit()
{
    const BackupLimit limit = LoadBackupLimit();
    auto* part = new QWidget(this);
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](QCheckBox*& box, QSpinBox*& number, const char* name, const QString& caption,
                         const QString& unit, int value, int usual, int most) {
        box = new QCheckBox(caption, part);
        box->setObjectName(QStringLiteral("chkBackup") + QLatin1String(name));
        box->setChecked(value > 0);
        number = new QSpinBox(part);
        number->setObjectName(QStringLiteral("spnBackup") + QLatin1String(name));
        number->setAccessibleName(WithoutMnemonic(caption));
        number->setRange(1, most);
        number->setSuffix(unit);
        number->setValue(value > 0 ? value : usual);
        number->setEnabled(value > 0);
        row->addWidget(box);
        row->addWidget(number);
        connect(box, &QCheckBox::toggled, number, &QSpinBox::setEnabled);
        connect(box, &QCheckBox::toggled, this, &dlgBackups::KeepLimit);
        connect(number, &QSpinBox::valueChanged, this, &dlgBackups::KeepLimit);
    };
    constexpr int kUsualNumber = 50;
    constexpr int kUsualDays = 365;
    constexpr int kMost = 9999;
    add(chkBackupNumber_, spnBackupNumber_, "Number", tr("Keep no &more than"), tr(" backups"), limit.most,
        kUsualNumber, kMost);
    add(chkBackupAge_, spnBackupAge_, "Age", tr("Keep no &longer than"), tr(" days"), limit.days, kUsualDays,
        kMost);
    row->addStretch(1);
    part->setToolTip(tr("The oldest are deleted when the next backup has been kept"));
    return part;
}

QPushButton* dlgBackups::AddButton(QLayout& row, const char* name, const QString& text, const QString& hint)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    button->setAutoDefault(false);
    row.addWidget(button);
    return button;
}

QLayout* dlgBackups::BuildButtons()
{
    auto* row = new QHBoxLayout;
    cmbBackupOpen_ = AddButton(*row, "cmbBackupOpen", tr("&Open"), tr("Open the backup as a clone file"));
    cmbBackupCompare_ = AddButton(*row, "cmbBackupCompare", tr("&Compare"),
                                  tr("List what differs from the open image, and take from the backup"));
    cmbBackupWrite_ =
        AddButton(*row, "cmbBackupWrite", tr("&Write Back..."),
                  tr("Write what the backup holds to the receiver; the open image stays as it is"));
    cmbBackupDelete_ =
        AddButton(*row, "cmbBackupDelete", tr("&Delete..."), tr("Delete the selected backups"));
    row->addStretch(1);
    auto* close = AddButton(*row, "cmbBackupClose", tr("Close"), {});
    cmbBackupCompare_->setDefault(true);
    connect(cmbBackupOpen_, &QPushButton::clicked, this, [this] { Choose(Action::Open); });
    connect(cmbBackupCompare_, &QPushButton::clicked, this, [this] { Choose(Action::Compare); });
    connect(cmbBackupWrite_, &QPushButton::clicked, this, [this] { Choose(Action::WriteBack); });
    connect(cmbBackupDelete_, &QPushButton::clicked, this, &dlgBackups::Delete);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void dlgBackups::ListBackups()
{
    backups_ = BackupsIn(folder_);
    lstBackups_->clear();
    for (std::size_t i = 0; i < backups_.size(); ++i) {
        auto* item = new QTreeWidgetItem(lstBackups_);
        item->setText(kTime, Language::OfProgram().ShortTime(backups_[i].time));
        item->setText(kHolds, Translated(ScopeText(backups_[i].scope)));
        item->setToolTip(kTime, PlainToolTip(VisibleText(backups_[i].path)));
        item->setTextAlignment(kRows, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(kTime, kIndexRole, static_cast<int>(i));
    }
    if (lstBackups_->topLevelItemCount() > 0)
        lstBackups_->setCurrentItem(lstBackups_->topLevelItem(0));
    next_ = 0;
    reading_.start(0);
    ShowButtons();
}

void dlgBackups::ShowNext()
{
    if (next_ >= lstBackups_->topLevelItemCount())
        return reading_.stop();
    QTreeWidgetItem* item = lstBackups_->topLevelItem(next_++);
    ShowBackup(*item, BackupOf(item));
}

void dlgBackups::ShowBackup(QTreeWidgetItem& item, const BackupFile& backup)
{
    CloneImage image = open_;
    if (const auto problem = LoadCloneFile(backup.path, image)) {
        item.setText(kDiffers, tr("cannot be read: %1").arg(Translated(problem->details)));
        item.setToolTip(kDiffers, PlainToolTip(item.text(kDiffers)));
        return;
    }
    const TransferScope scope = ScopeHeld(backup, image);
    const ComparedParts parts = PartsHeld(scope, image);
    item.setText(kHolds, Translated(ScopeText(scope)));
    // A backup of channels or banks alone does not know whose they are.
    item.setText(kModel, scope.settings ? Translated(SettingText(image.Settings(),
                                                                 SettingIndex(&ReceiverSettings::model)))
                                        : QStringLiteral("-"));
    item.setText(kRows, scope.memory ? QString::number(ChannelsIn(image, parts.rows)) : QStringLiteral("-"));
    item.setText(kDiffers, DifferencesText(CountDifferences(rqm5::Compare(open_, image, parts))));
}

const BackupFile& dlgBackups::BackupOf(const QTreeWidgetItem* item) const
{
    return backups_.at(static_cast<std::size_t>(item->data(kTime, kIndexRole).toInt()));
}

std::vector<BackupFile> dlgBackups::Selected() const
{
    std::vector<BackupFile> selected;
    for (const QTreeWidgetItem* item : lstBackups_->selectedItems())
        selected.push_back(BackupOf(item));
    return selected;
}

void dlgBackups::ShowButtons()
{
    const std::size_t selected = Selected().size();
    for (QPushButton* button : {cmbBackupOpen_, cmbBackupCompare_, cmbBackupWrite_})
        button->setEnabled(selected == 1);
    cmbBackupDelete_->setEnabled(selected > 0);
}

void dlgBackups::Choose(Action action)
{
    const std::vector<BackupFile> selected = Selected();
    if (selected.size() != 1)
        return;
    chosen_ = selected.front();
    action_ = action;
    accept();
}

void dlgBackups::Delete()
{
    const std::vector<BackupFile> selected = Selected();
    std::vector<std::string> names;
    names.reserve(selected.size());
    for (const BackupFile& backup : selected)
        names.push_back(VisibleText(QFileInfo(backup.path).fileName().toStdString()));
    constexpr std::size_t kNamed = 10;
    if (dialogs_.Ask(this, {.title = tr("Backups"),
                            .text = tr("Delete the selected backups? They cannot be brought back."),
                            .details = RowList(names, kNamed),
                            .icon = QMessageBox::Question,
                            .buttons = QMessageBox::Yes | QMessageBox::No,
                            .defaultButton = QMessageBox::No}) != QMessageBox::Yes)
        return;
    std::vector<std::string> left;
    for (const BackupFile& backup : selected)
        if (QFile file(backup.path); !file.remove())
            left.push_back(
                (VisibleText(backup.path) + QStringLiteral(": ") + file.errorString()).toStdString());
    if (!left.empty())
        dialogs_.Ask(this,
                     {.title = tr("Backups"),
                      .text = tr("Not every backup could be deleted. Look who may write to the folder."),
                      .details = RowList(left, kNamed),
                      .icon = QMessageBox::Warning});
    ListBackups();
}

void dlgBackups::KeepLimit()
{
    SaveBackupLimit({chkBackupNumber_->isChecked() ? spnBackupNumber_->value() : 0,
                     chkBackupAge_->isChecked() ? spnBackupAge_->value() : 0});
}

}  // namespace rqm5
