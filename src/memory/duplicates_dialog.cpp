#include "memory/duplicates_dialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "image/display_text.h"
#include "image/number_text.h"
#include "language/translated.h"
#include "memory/duplicates.h"
#include "memory/row_names.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

enum TreeColumn { kPlace, kTreeMode, kState, kTreeNote };

constexpr int kLongestNote = 200;

}  // namespace

dlgDuplicates::dlgDuplicates(const Document& document, QWidget* parent)
    : QDialog(parent),
      document_(document),
      lblDuplicates_(new QLabel(this)),
      lstDuplicates_(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("dlgDuplicates"));
    setWindowTitle(Designed(QT_TR_NOOP("Duplicates")));
    Build();
    connect(lstDuplicates_, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* item) { emit PlaceChosen(item->data(0, Qt::UserRole).toInt()); });
    connect(lstDuplicates_, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { emit PlaceChosen(item->data(0, Qt::UserRole).toInt()); });
    connect(&document, &Document::Replaced, this, [this] {
        if (isVisible())
            ShowDuplicates();
    });
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (isVisible() && (change.HasMemoryRows() || !change.BankSize.empty()))
            ShowDuplicates();
    });
    SetFormTexts(*this);
}

void dlgDuplicates::Build()
{
    constexpr int kLetters = 70;
    lblDuplicates_->setObjectName(QStringLiteral("lblDuplicates"));
    lblDuplicates_->setTextFormat(Qt::PlainText);
    lstDuplicates_->setObjectName(QStringLiteral("lstDuplicates"));
    lstDuplicates_->setAccessibleName(Designed(QT_TR_NOOP("Frequencies that are stored more than once")));
    lstDuplicates_->setHeaderLabels({Designed(QT_TR_NOOP("Frequency and place")),
                                     Designed(QT_TR_NOOP("Mode")), Designed(QT_TR_NOOP("State")),
                                     Designed(QT_TR_NOOP("Note"))});
    lstDuplicates_->setUniformRowHeights(true);
    // A second click is for the row it goes to.
    lstDuplicates_->setExpandsOnDoubleClick(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // Enter goes to a place.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblDuplicates_);
    column->addWidget(lstDuplicates_, 1);
    column->addWidget(buttons);
    lstDuplicates_->setFocus();
    resize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * 24);
    FitColumns();
}

/// The titles have other lengths in other languages.
void dlgDuplicates::FitColumns()
{
    const int letter = fontMetrics().averageCharWidth();
    const int widths[] = {32, 7, 7};
    for (int i = 0; i < 3; ++i) {
        lstDuplicates_->resizeColumnToContents(i);
        lstDuplicates_->setColumnWidth(i, std::max(letter * widths[i], lstDuplicates_->columnWidth(i)));
    }
}

/// By the first row of each; a list that is made anew leaves closed what was.
std::vector<int> dlgDuplicates::ClosedFrequencies() const
{
    std::vector<int> closed;
    for (int i = 0; i < lstDuplicates_->topLevelItemCount(); ++i)
        if (const QTreeWidgetItem* frequency = lstDuplicates_->topLevelItem(i); !frequency->isExpanded())
            closed.push_back(frequency->data(0, Qt::UserRole).toInt());
    return closed;
}

void dlgDuplicates::ShowDuplicates()
{
    const CloneImage& image = document_.Image();
    const std::vector<RepeatedFrequency> repeated = RepeatedFrequencies(image);
    const int scrolled = lstDuplicates_->verticalScrollBar()->value();
    const std::vector<int> closed = ClosedFrequencies();
    const QTreeWidgetItem* before = lstDuplicates_->currentItem();
    const QVariant current = before != nullptr ? before->data(0, Qt::UserRole) : QVariant();
    const bool isRow = before != nullptr && before->parent() != nullptr;
    lstDuplicates_->clear();
    for (const RepeatedFrequency& entry : repeated) {
        auto* frequency = new QTreeWidgetItem(lstDuplicates_);
        frequency->setText(kPlace, tr("%1 MHz, %2 times")
                                       .arg(QString::fromStdString(FormatMegahertz(entry.frequency)))
                                       .arg(entry.rows.size()));
        frequency->setData(0, Qt::UserRole, entry.rows.front());
        if (!isRow && current == entry.rows.front())
            lstDuplicates_->setCurrentItem(frequency);
        for (const int row : entry.rows) {
            const Message place = PlaceOfRow(image, row);
            auto* item = new QTreeWidgetItem(frequency);
            item->setText(kPlace, Translated(place.empty() ? RowLabel(image, row) : place));
            item->setText(kTreeMode, QString::fromStdString(image.MemText(row, kMode)));
            item->setText(kState, image.MemEnable(row) ? tr("on") : tr("off"));
            item->setText(kTreeNote, QString::fromStdString(
                                         VisibleText(CutToWidth(image.MemData(row).note, kLongestNote))));
            item->setData(0, Qt::UserRole, row);
            if (isRow && current == row)
                lstDuplicates_->setCurrentItem(item);
        }
        frequency->setExpanded(std::ranges::count(closed, entry.rows.front()) == 0);
    }
    lstDuplicates_->verticalScrollBar()->setValue(scrolled);
    lblDuplicates_->setText(
        repeated.empty() ? tr("No frequency is stored more than once.")
        : repeated.size() == 1
            ? tr("1 frequency is stored more than once. A click goes to a place.")
            : tr("%1 frequencies are stored more than once. A click goes to a place.").arg(repeated.size()));
}

void dlgDuplicates::Present()
{
    ShowDuplicates();
    isMinimized() ? showNormal() : show();
    raise();
    activateWindow();
}

void dlgDuplicates::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        SetFormTexts(*this);
        ShowDuplicates();
        FitColumns();
    }
    QDialog::changeEvent(event);
}

}  // namespace rqm5
