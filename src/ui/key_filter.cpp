#include "ui/key_filter.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace rqm5 {

KeyFilter::KeyFilter(QLineEdit& box, KeySet keys) : QValidator(&box), box_(box), keys_(keys)
{
    box.setValidator(this);
    box.installEventFilter(this);
}

bool KeyFilter::Accepts(QChar key, const QString& present) const
{
    constexpr QChar kPoint = u'.';
    if (key == kPoint)
        return keys_ == KeySet::Decimal && !present.contains(kPoint);
    return key >= u'0' && key <= u'9';
}

QString KeyFilter::Accepted(const QString& typed, const QString& present) const
{
    QString taken;
    for (const QChar key : typed)
        if (Accepts(key, present + taken))
            taken += key;
    return taken;
}

QValidator::State KeyFilter::validate(QString& text, int& cursor) const
{
    if (Accepted(text, QString()) != text) {
        // What was inserted ends at the cursor and begins where the old text ends to agree.
        int start = 0;
        while (start < cursor && start < last_.size() && text[start] == last_[start])
            ++start;
        const QString before = text.left(start);
        const QString after = text.mid(cursor);
        const QString taken = Accepted(text.mid(start, cursor - start), before + after);
        if (taken.isEmpty())
            return Invalid;
        text = before + taken + after;
        cursor = start + static_cast<int>(taken.size());
    }
    last_ = text;
    return Acceptable;
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isCommand = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        const QString text = key->text();
        if (!isCommand && !text.isEmpty() && text[0].isPrint() && !Accepts(text[0], box_.text()))
            return true;
    }
    return QValidator::eventFilter(watched, event);
}

}  // namespace rqm5
