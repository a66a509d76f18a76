#include "memory/compare_dialog.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScreen>

#include "language/translated.h"
#include "memory/take_differences.h"
#include "ui/elided_label.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

constexpr QSize kWindowFrame(8, 36);

constexpr const char* kFilters[] = {
    QT_TRANSLATE_NOOP("rqm5::dlgCompare", "All differences"),
    QT_TRANSLATE_NOOP("rqm5::dlgCompare", "Only here"),
    QT_TRANSLATE_NOOP("rqm5::dlgCompare", "Only there"),
    QT_TRANSLATE_NOOP("rqm5::dlgCompare", "Moved"),
    QT_TRANSLATE_NOOP("rqm5::dlgCompare", "Changed in place"),
};
static_assert(std::size(kFilters) == kFieldDiffers);

}  // namespace

dlgCompare::dlgCompare(Document& document, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      document_(document),
      dialogs_(dialogs),
      lstCompare_(new CompareTree(this)),
      lblCompareSource_(new ElidedLabel(Qt::ElideMiddle, this)),
      lblCompareCount_(new QLabel(this)),
      cbbCompareGroup_(new QComboBox(this)),
      cbbCompareWhat_(new QComboBox(this))
{
    setObjectName(QStringLiteral("dlgCompare"));
    setWindowTitle(Designed(QT_TR_NOOP("Compare")));
    lstCompare_->setObjectName(QStringLiteral("lstCompare"));
    lstCompare_->setAccessibleName(Designed(QT_TR_NOOP("What differs")));
    lblCompareSource_->setObjectName(QStringLiteral("lblCompareSource"));
    lblCompareSource_->setTextFormat(Qt::PlainText);
    lblCompareCount_->setObjectName(QStringLiteral("lblCompareCount"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(BuildSources());
    column->addWidget(lblCompareSource_);
    column->addLayout(BuildFilters());
    column->addWidget(lstCompare_, 1);
    column->addLayout(BuildButtons());
    connect(lstCompare_, &CompareTree::PlaceChosen, this, &dlgCompare::PlaceChosen);
    connect(lstCompare_, &QTreeWidget::itemSelectionChanged, this, &dlgCompare::ShowButtons);
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &dlgCompare::CompareAgain);
    connect(&document, &Document::Changed, this, &dlgCompare::CompareSoon);
    connect(&document, &Document::Replaced, this, &dlgCompare::CompareSoon);
    constexpr int kLetters = 150;
    constexpr int kLines = 32;
    resize(QSize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * kLines)
               .boundedTo(screen()->availableSize() - kWindowFrame));
    ShowTexts();
}

void dlgCompare::ShowTexts()
{
    SetFormTexts(*this);
    for (int filter = 0; filter < cbbCompareWhat_->count(); ++filter)
        cbbCompareWhat_->setItemText(filter, filter < kFieldDiffers
                                                 ? tr(kFilters[filter])
                                                 : Translated(RowFieldName(filter - kFieldDiffers)));
    ShowComparison();
}

QPushButton* dlgCompare::MakeButton(const char* name, const QString& text, const QString& hint)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    // Enter goes to the row.
    button->setAutoDefault(false);
    return button;
}

QLayout* dlgCompare::BuildSources()
{
    cmbCompareFile_ = MakeButton("cmbCompareFile", Designed(QT_TR_NOOP("&File...")),
                                 Designed(QT_TR_NOOP("Compare with a clone file")));
    cmbCompareBackup_ = MakeButton("cmbCompareBackup", Designed(QT_TR_NOOP("&Backup...")),
                                   Designed(QT_TR_NOOP("Compare with a backup")));
    cmbCompareLastRead_ =
        MakeButton("cmbCompareLastRead", Designed(QT_TR_NOOP("&Last Read")),
                   Designed(QT_TR_NOOP("Compare with what the receiver held when it was last read")));
    cmbCompareReceiver_ = MakeButton(
        "cmbCompareReceiver", Designed(QT_TR_NOOP("&Receiver Now")),
        Designed(
            QT_TR_NOOP("Read the receiver and compare with what it holds; the open image stays as it is")));
    connect(cmbCompareFile_, &QPushButton::clicked, this, &dlgCompare::FileWanted);
    connect(cmbCompareBackup_, &QPushButton::clicked, this, &dlgCompare::BackupWanted);
    connect(cmbCompareLastRead_, &QPushButton::clicked, this, &dlgCompare::LastReadWanted);
    connect(cmbCompareReceiver_, &QPushButton::clicked, this, &dlgCompare::ReceiverWanted);
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(Designed(QT_TR_NOOP("Compare the open image with:")), this));
    for (QPushButton* button : {cmbCompareFile_, cmbCompareBackup_, cmbCompareLastRead_, cmbCompareReceiver_})
        row->addWidget(button);
    row->addStretch(1);
    return row;
}

QLayout* dlgCompare::BuildFilters()
{
    cbbCompareGroup_->setObjectName(QStringLiteral("cbbCompareGroup"));
    cbbCompareGroup_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cbbCompareWhat_->setObjectName(QStringLiteral("cbbCompareWhat"));
    cbbCompareWhat_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (int filter = 0; filter < static_cast<int>(kFieldDiffers) + kRowFields; ++filter)
        cbbCompareWhat_->addItem({}, filter);
    auto* row = new QHBoxLayout;
    const std::pair<QString, QComboBox*> boxes[] = {{Designed(QT_TR_NOOP("&Group:")), cbbCompareGroup_},
                                                    {Designed(QT_TR_NOOP("&Show:")), cbbCompareWhat_}};
    for (const auto& [caption, box] : boxes) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(box);
        row->addWidget(label);
        row->addWidget(box);
        connect(box, &QComboBox::activated, this, &dlgCompare::ShowDifferences);
    }
    row->addStretch(1);
    row->addWidget(lblCompareCount_);
    return row;
}

QLayout* dlgCompare::BuildButtons()
{
    cmbTakeSelected_ =
        MakeButton("cmbTakeSelected", Designed(QT_TR_NOOP("&Take Selected")),
                   Designed(QT_TR_NOOP("Take the selected rows and groups from the other side")));
    cmbTakeAll_ = MakeButton("cmbTakeAll", {},
                             Designed(QT_TR_NOOP("Take everything that is shown from the other side")));
    auto* close = MakeButton("cmbCompareClose", Designed(QT_TR_NOOP("&Close")), {});
    connect(cmbTakeSelected_, &QPushButton::clicked, this, [this] { Take(lstCompare_->SelectedItems()); });
    connect(cmbTakeAll_, &QPushButton::clicked, this, [this] { Take(lstCompare_->ShownItems()); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(cmbTakeSelected_);
    row->addWidget(cmbTakeAll_);
    row->addStretch(1);
    row->addWidget(close);
    return row;
}

void dlgCompare::ShowSource(Source source)
{
    source_ = std::move(source);
    cbbCompareWhat_->setCurrentIndex(0);
    cbbCompareGroup_->setCurrentIndex(0);
    CompareAgain();
    lstCompare_->setFocus();
}

void dlgCompare::CompareSoon()
{
    // A read changes the document all the time; what it came to is compared once.
    if (isVisible() && !isTransferRunning_ && !soon_.isActive())
        soon_.start(0);
}

void dlgCompare::CompareAgain()
{
    soon_.stop();
    comparison_ = source_ ? rqm5::Compare(document_.Image(), source_->image, source_->parts) : Comparison();
    ShowComparison();
}

void dlgCompare::ShowComparison()
{
    lblCompareSource_->setText(source_ ? Translated(source_->title())
                                       : tr("Choose above what the open image is compared with."));
    ListGroups();
    ShowDifferences();
}

void dlgCompare::ListGroups()
{
    const int chosen =
        cbbCompareGroup_->count() > 0 ? cbbCompareGroup_->currentData().toInt() : CompareTree::kAllGroups;
    cbbCompareGroup_->clear();
    cbbCompareGroup_->addItem(tr("All groups"), CompareTree::kAllGroups);
    for (const DifferentItem& item : comparison_)
        if (cbbCompareGroup_->findData(item.group) < 0)
            cbbCompareGroup_->addItem(Translated(ComparedGroupName(item.group)), item.group);
    cbbCompareGroup_->setCurrentIndex(std::max(0, cbbCompareGroup_->findData(chosen)));
}

bool dlgCompare::IsFiltered() const
{
    return cbbCompareGroup_->currentIndex() > 0 || cbbCompareWhat_->currentIndex() > 0;
}

void dlgCompare::ShowDifferences()
{
    lstCompare_->ShowItems(comparison_, cbbCompareGroup_->currentData().toInt(),
                           cbbCompareWhat_->currentData().toInt());
    const std::size_t shown = lstCompare_->ShownItems().size();
    lblCompareCount_->setText(!source_              ? QString()
                              : comparison_.empty() ? tr("Nothing differs.")
                              : IsFiltered() ? tr("%1 of %2 differences").arg(shown).arg(comparison_.size())
                                             : tr("Differences: %1").arg(shown));
    cmbTakeAll_->setText(IsFiltered() ? tr("Take &All Shown") : tr("Take &All"));
    ShowButtons();
}

void dlgCompare::ShowButtons()
{
    cmbTakeSelected_->setEnabled(!isTransferRunning_ && !lstCompare_->SelectedItems().empty());
    cmbTakeAll_->setEnabled(!isTransferRunning_ && lstCompare_->topLevelItemCount() > 0);
    for (QPushButton* button : {cmbCompareFile_, cmbCompareBackup_, cmbCompareReceiver_})
        button->setEnabled(!isTransferRunning_);
    cmbCompareLastRead_->setEnabled(!isTransferRunning_ && hasLastRead_);
}

void dlgCompare::Take(const std::vector<ItemId>& items)
{
    CloneImage taken = document_.Image();
    if (!TakeDifferences(taken, source_->image, source_->parts, items)) {
        dialogs_.Ask(this, {.title = tr("Take"),
                            .text = tr("The banks would hold more than 1000 channels together."),
                            .details = tr("Nothing was taken. Take the whole group \"Bank layout\" instead "
                                          "of single sizes."),
                            .icon = QMessageBox::Warning});
        return;
    }
    document_.Edit({MESSAGE("Take from %1 (%2)"), {source_->name, lstCompare_->NameOf(items)}},
                   [&taken](CloneImage& image) { image = std::move(taken); });
    CompareAgain();
    lstCompare_->setFocus();
}

void dlgCompare::Present()
{
    isMinimized() ? showNormal() : show();
    raise();
    activateWindow();
}

void dlgCompare::SetLastRead(bool isThere)
{
    hasLastRead_ = isThere;
    ShowButtons();
}

void dlgCompare::SetTransferRunning(bool isRunning)
{
    isTransferRunning_ = isRunning;
    CompareSoon();
    ShowButtons();
}

void dlgCompare::showEvent(QShowEvent* event)
{
    CompareAgain();
    QDialog::showEvent(event);
}

void dlgCompare::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ShowTexts();
    QDialog::changeEvent(event);
}

}  // namespace rqm5
