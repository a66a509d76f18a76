#include "app/transfer_bar.h"

#include <QHBoxLayout>
#include <QShortcut>

#include "ui/form_texts.h"

namespace rqm5 {

/// Shows a text also while nobody knows how far it will go.
class TextProgressBar : public QProgressBar
{
  public:
    using QProgressBar::QProgressBar;

    void SetText(const QString& text)
    {
        text_ = text;
        setAccessibleDescription(text);
        update();
    }

    QString text() const override { return text_.isEmpty() ? QProgressBar::text() : text_; }

  private:
    QString text_;
};

TransferBar::TransferBar(QWidget* parent)
    : QWidget(parent),
      progressBar_(new TextProgressBar(this)),
      Text3_(new QLineEdit(this)),
      cmbCancel_(new QPushButton(Designed(QT_TR_NOOP("Cancel")), this))
{
    progressBar_->setObjectName(QStringLiteral("ProgressBar1"));
    progressBar_->setAccessibleName(Designed(QT_TR_NOOP("Progress of the transfer")));
    Text3_->setObjectName(QStringLiteral("Text3"));
    Text3_->setAccessibleName(Designed(QT_TR_NOOP("Channel being transferred")));
    Text3_->setStatusTip(Designed(QT_TR_NOOP("The channel that is being transferred")));
    Text3_->setReadOnly(true);
    Text3_->setFocusPolicy(Qt::NoFocus);
    Text3_->setAlignment(Qt::AlignRight);
    Text3_->setFixedWidth(Text3_->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 16);
    cmbCancel_->setObjectName(QStringLiteral("cmbCancel"));
    cmbCancel_->setStatusTip(Designed(QT_TR_NOOP("End the transfer now; what was transferred stays")));
    // A shortcut of the button itself would animate it first; this one ends the transfer at once.
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &TransferBar::CancelRequested);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(progressBar_, 1);
    row->addWidget(Text3_);
    row->addWidget(cmbCancel_);
    connect(cmbCancel_, &QPushButton::clicked, this, &TransferBar::CancelRequested);
    hide();
}

void TransferBar::Begin()
{
    progressBar_->setRange(0, 0);
    progressBar_->SetText({});
    Text3_->clear();
    show();
    cmbCancel_->setFocus();
}

void TransferBar::End()
{
    hide();
}

void TransferBar::StartProgress(int maximum)
{
    progressBar_->setRange(0, maximum);
    progressBar_->setValue(0);
}

void TransferBar::MoveProgress(int value, int row)
{
    Text3_->setText(row >= 0 ? QString::number(row) : QString());
    progressBar_->setValue(value);
}

void TransferBar::Tell(const QString& text)
{
    progressBar_->SetText(text);
}

}  // namespace rqm5
