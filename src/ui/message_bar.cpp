#include "ui/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "language/language.h"
#include "language/translated.h"
#include "ui/elided_label.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

constexpr int kMargin = 6;

}  // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), lblMessage_(new ElidedLabel(Qt::ElideRight, this)), buttons_(new QHBoxLayout)
{
    setObjectName(QStringLiteral("barMessage"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    lblMessage_->setObjectName(QStringLiteral("lblMessage"));
    lblMessage_->setForegroundRole(QPalette::ToolTipText);
    auto* icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size, size));
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("cmbMessageClose"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(Designed(QT_TR_NOOP("Close this message")));
    close->setAccessibleName(close->toolTip());
    connect(close, &QToolButton::clicked, this, &MessageBar::cmbMessageClose_Click);
    connect(&Language::OfProgram(), &Language::Changed, this, &MessageBar::ShowTexts);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin / 2, kMargin / 2, kMargin / 2);
    row->addWidget(icon);
    row->addWidget(lblMessage_, 1);
    row->addLayout(buttons_);
    row->addWidget(close);
    hide();
}

bool MessageBar::Has(const QString& key) const
{
    return std::ranges::find(messages_, key, &Notice::key) != messages_.end();
}

void MessageBar::Show(Notice notice)
{
    std::erase_if(messages_, [&notice](const Notice& old) { return old.key == notice.key; });
    messages_.push_back(std::move(notice));
    ShowLatest();
}

void MessageBar::Withdraw(const QString& key)
{
    if (std::erase_if(messages_, [&key](const Notice& old) { return old.key == key; }) > 0)
        ShowLatest();
}

void MessageBar::ShowLatest()
{
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        // It may be the one that is being pressed.
        item->widget()->hide();
        item->widget()->setObjectName(QString());
        item->widget()->deleteLater();
        delete item;
    }
    setVisible(!messages_.empty());
    if (messages_.empty())
        return;
    for (std::size_t i = 0; i < messages_.back().buttons.size(); ++i) {
        auto* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("cmbMessage_%1").arg(i));
        connect(button, &QPushButton::clicked, this, [this, i] { Press(i); });
        buttons_->addWidget(button);
    }
    ShowTexts();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::ShowTexts()
{
    if (messages_.empty())
        return;
    const Notice& latest = messages_.back();
    lblMessage_->setText(Translated(latest.text));
    for (int i = 0; i < buttons_->count(); ++i)
        static_cast<QPushButton*>(buttons_->itemAt(i)->widget())
            ->setText(Translated(latest.buttons[static_cast<std::size_t>(i)].text));
}

void MessageBar::Press(std::size_t button)
{
    // What it does may take the message away, and the function with it.
    const auto press = messages_.back().buttons[button].press;
    press();
}

void MessageBar::cmbMessageClose_Click()
{
    const QString key = messages_.back().key;
    Withdraw(key);
    emit Closed(key);
}

}  // namespace rqm5
