#include "memory/bank_list.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "language/language.h"
#include "language/translated.h"
#include "memory/bank_fill.h"
#include "memory/bank_layout.h"
#include "ui/form_texts.h"
#include "ui/off_colour.h"

namespace rqm5 {
namespace {

constexpr int kMargin = 6;

/// Paints what a group holds behind its name, and pales what holds nothing.
class FillDelegate : public QStyledItemDelegate
{
  public:
    FillDelegate(const Document& document, QObject* parent) : QStyledItemDelegate(parent), document_(document)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const bool isSelected = (item.state & QStyle::State_Selected) != 0;
        painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->setFont(item.font);
        painter->drawText(item.rect.adjusted(kMargin, 0, -kMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                          FillText(index.row()));
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize name = QStyledItemDelegate::sizeHint(option, index);
        return name + QSize(option.fontMetrics.horizontalAdvance(FillText(index.row())) + 4 * kMargin, 0);
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (FillAt(index.row()).used > 0)
            return;
        option->palette.setColor(QPalette::Text, OffColour(option->palette, QPalette::Base));
        option->palette.setColor(QPalette::HighlightedText, OffColour(option->palette, QPalette::Highlight));
        option->font.setItalic(true);
    }

  private:
    Fill FillAt(int selector) const
    {
        return FillOf(document_.Image(), GroupRows(document_.Image(), selector));
    }

    QString FillText(int selector) const
    {
        const Fill fill = FillAt(selector);
        return fill.rows == 0 ? BankList::tr("none") : BankList::tr("%1 of %2").arg(fill.used).arg(fill.rows);
    }

    const Document& document_;
};

}  // namespace

BankList::BankList(const Document& document, QWidget* parent) : QComboBox(parent)
{
    // Some styles show every entry at once, over the whole height of the screen, unless they are told not to.
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    setObjectName(QStringLiteral("cbbBank"));
    setStatusTip(Designed(QT_TR_NOOP("The group of channels that the table shows and a transfer moves")));
    for (int selector = 0; selector < kSelectorEntries; ++selector)
        addItem({});
    ShowTexts();
    connect(&Language::OfProgram(), &Language::Changed, this, &BankList::ShowTexts);
    setItemDelegate(new FillDelegate(document, this));
    setSizeAdjustPolicy(AdjustToContents);
    setMaxVisibleItems(kEntriesInSight);
    setFocusPolicy(Qt::StrongFocus);
}

void BankList::ShowTexts()
{
    for (int selector = 0; selector < kSelectorEntries; ++selector)
        setItemText(selector, Translated(SelectorText(selector)));
}

void BankList::showPopup()
{
    const int frame = 2 * view()->frameWidth() + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + frame);
    QComboBox::showPopup();
}

void BankList::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

}  // namespace rqm5
