#pragma once

#include <QValidator>

class QLineEdit;

namespace rqm5 {

enum class KeySet {
    Digits,   ///< 0 to 9
    Decimal,  ///< 0 to 9, and one point
};

/// Keeps a line edit to the characters that may be typed into it.
///
/// A refused key is swallowed and leaves text and selection as they are; of a text that is pasted or
/// dropped only the allowed characters arrive. Belongs to the line edit it is made for.
class KeyFilter : public QValidator
{
    Q_OBJECT

  public:
    KeyFilter(QLineEdit& box, KeySet keys);

    State validate(QString& text, int& cursor) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Accepts(QChar key, const QString& present) const;
    QString Accepted(const QString& typed, const QString& present) const;

    QLineEdit& box_;
    KeySet keys_;
    mutable QString last_;  ///< the text before the change that is being validated
};

}  // namespace rqm5
