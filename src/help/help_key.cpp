#include "help/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

#include "help/help_topics.h"
#include "language/language.h"

namespace rqm5 {

HelpKey::HelpKey(Dialogs& dialogs, const QTabWidget& pages, QWidget& mainWindow)
    : QObject(&mainWindow), dialogs_(dialogs), pages_(pages)
{
    QApplication::instance()->installEventFilter(this);
}

QString HelpKey::TopicOfFocus(const QWidget* modal) const
{
    if (const auto* box = qobject_cast<const QMessageBox*>(modal))
        return MessageTopic(Language::OfProgram().SourceOf(box->text()));
    QStringList names;
    for (const QObject* holder = QApplication::focusWidget(); holder != nullptr; holder = holder->parent())
        names << holder->objectName();
    if (modal == nullptr && pages_.currentWidget() != nullptr)
        names << pages_.currentWidget()->objectName();
    return HelpTopic(names);
}

void HelpKey::ShowHelp()
{
    QWidget* modal = QApplication::activeModalWidget();
    const QString topic = TopicOfFocus(modal);
    HelpFor(modal).ShowTopic(topic);
}

/// A modal dialog blocks every window but its own children.
frmHelp& HelpKey::HelpFor(QWidget* modal)
{
    if (modal == nullptr) {
        if (!help_)
            help_ = std::make_unique<frmHelp>(dialogs_, nullptr);
        return *help_;
    }
    auto* help = modal->findChild<frmHelp*>(QString(), Qt::FindDirectChildrenOnly);
    return help != nullptr ? *help : *new frmHelp(dialogs_, modal);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier)
        return false;
    event->accept();  // else it goes on to what holds the control, and help would be asked for again
    ShowHelp();
    return true;
}

}  // namespace rqm5
