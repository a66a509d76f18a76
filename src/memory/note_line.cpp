#include "memory/note_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "files/safe_notes.h"
#include "language/language.h"
#include "ui/form_texts.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kChoice = QStringLiteral("Editor/SafeNotes");

}  // namespace

bool WantsSafeNotes()
{
    return SettingsStore().value(kChoice, false).toBool();
}

NoteLine::NoteLine(QLineEdit& note)
    : txtNote_(note),
      lblNoteHint_(new QLabel(this)),
      cmbSafeNote_(new QPushButton(Designed(QT_TR_NOOP("&Use ; and '")), this))
{
    lblNoteHint_->setObjectName(QStringLiteral("lblNoteHint"));
    lblNoteHint_->setTextFormat(Qt::PlainText);
    cmbSafeNote_->setObjectName(QStringLiteral("cmbSafeNote"));
    cmbSafeNote_->setCheckable(true);
    cmbSafeNote_->setAutoDefault(false);
    cmbSafeNote_->setToolTip(Designed(QT_TR_NOOP(
        "Put semicolons for commas and apostrophes for quotes, in this note and all that follow")));
    cmbSafeNote_->setChecked(WantsSafeNotes());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lblNoteHint_, 1);
    row->addWidget(cmbSafeNote_);
    connect(&txtNote_, &QLineEdit::textChanged, this, &NoteLine::txtNote_Change);
    connect(cmbSafeNote_, &QPushButton::clicked, this, &NoteLine::cmbSafeNote_Click);
    connect(&Language::OfProgram(), &Language::Changed, this, &NoteLine::ShowHint);
    txtNote_Change();
}

void NoteLine::KeepPlace(bool isKept)
{
    QSizePolicy place = sizePolicy();
    place.setRetainSizeWhenHidden(isKept);
    setSizePolicy(place);
}

void NoteLine::ShowNote(const QString& note)
{
    wasMended_ = false;
    txtNote_.setText(note);
    txtNote_Change();
}

void NoteLine::txtNote_Change()
{
    const bool isSpoilt = !NoteSurvives(txtNote_.text().toStdString());
    if (isSpoilt && cmbSafeNote_->isChecked())
        return MakeSafe();
    ShowHint();
    setVisible(isSpoilt || wasMended_);
}

void NoteLine::ShowHint()
{
    lblNoteHint_->setText(NoteSurvives(txtNote_.text().toStdString())
                              ? tr("A comma or quotes would not survive a save: replaced.")
                              : tr("A comma or quotes in a note will not survive a save."));
}

void NoteLine::MakeSafe()
{
    wasMended_ = true;
    const int cursor = txtNote_.cursorPosition();
    const QString safe = QString::fromStdString(SafeNote(txtNote_.text().toStdString()));
    // Typed over, so that the box can take it back.
    txtNote_.selectAll();
    txtNote_.insert(safe);
    txtNote_.setCursorPosition(cursor);
}

void NoteLine::cmbSafeNote_Click()
{
    SettingsStore().setValue(kChoice, cmbSafeNote_->isChecked());
    wasMended_ = wasMended_ && cmbSafeNote_->isChecked();
    if (cmbSafeNote_->isChecked() && !NoteSurvives(txtNote_.text().toStdString()))
        MakeSafe();
    txtNote_.setFocus(Qt::OtherFocusReason);
}

}  // namespace rqm5
