#include "ui/form_texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTabBar>
#include <QTreeWidget>
#include <QVariant>
#include <optional>

namespace rqm5 {

namespace {

constexpr char kContext[] = "textContext";

/// The translation of a text in the context of an object's class or of a class that holds it.
std::optional<QString> Lookup(const QObject* object, const QString& text)
{
    const QByteArray source = text.toUtf8();
    const auto in = [&source](const char* context) {
        return QCoreApplication::translate(context, source.constData());
    };
    for (; object != nullptr; object = object->parent()) {
        if (const QByteArray named = object->property(kContext).toByteArray(); !named.isEmpty())
            if (const QString found = in(named.constData()); found != text)
                return found;
        for (const QMetaObject* type = object->metaObject(); type != nullptr; type = type->superClass()) {
            if (const QString found = in(type->className()); found != text)
                return found;
        }
    }
    return std::nullopt;
}

/// What a text is to become. The tag keeps the designed text and what stands in for it, so that a text which
/// the program has changed since is taken as it is now.
QString NewText(QObject& object, const QByteArray& tag, const QString& current)
{
    const QStringList kept = object.property(tag.constData()).toStringList();
    const bool isShown = kept.size() == 2 && kept.last() == current;
    const QString source = isShown ? kept.first() : current;
    if (source.isEmpty())
        return current;
    if (const std::optional<QString> found = Lookup(&object, source)) {
        object.setProperty(tag.constData(), QStringList{source, *found});
        return *found;
    }
    object.setProperty(tag.constData(), QVariant());
    return source;
}

template <typename Control>
void SetText(Control& control, const char* tag, QString (Control::*text)() const,
             void (Control::*setText)(const QString&))
{
    const QString current = (control.*text)();
    const QString wanted = NewText(control, tag, current);
    if (wanted != current)
        (control.*setText)(wanted);
}

void SetTabTexts(QTabBar& tabs)
{
    for (int i = 0; i < tabs.count(); ++i) {
        tabs.setTabText(i, NewText(tabs, "tagTab" + QByteArray::number(i), tabs.tabText(i)));
        tabs.setTabToolTip(i, NewText(tabs, "tagTabTip" + QByteArray::number(i), tabs.tabToolTip(i)));
    }
}

void SetHeaderTexts(QTreeWidget& tree)
{
    QTreeWidgetItem& header = *tree.headerItem();
    for (int i = 0; i < tree.columnCount(); ++i)
        header.setText(i, NewText(tree, "tagHeader" + QByteArray::number(i), header.text(i)));
}

void SetActionTexts(QAction& action)
{
    SetText<QAction>(action, "tag", &QAction::text, &QAction::setText);
    SetText<QAction>(action, "tagStatusTip", &QAction::statusTip, &QAction::setStatusTip);
    // An action without a tooltip of its own answers with its text.
    if (action.property("hasToolTip").toBool())
        SetText<QAction>(action, "tagToolTip", &QAction::toolTip, &QAction::setToolTip);
}

void SetWidgetTexts(QWidget& widget)
{
    SetText<QWidget>(widget, "tagToolTip", &QWidget::toolTip, &QWidget::setToolTip);
    SetText<QWidget>(widget, "tagStatusTip", &QWidget::statusTip, &QWidget::setStatusTip);
    SetText<QWidget>(widget, "tagName", &QWidget::accessibleName, &QWidget::setAccessibleName);
    SetText<QWidget>(widget, "tagTitle", &QWidget::windowTitle, &QWidget::setWindowTitle);
    if (auto* label = qobject_cast<QLabel*>(&widget))
        SetText<QLabel>(*label, "tag", &QLabel::text, &QLabel::setText);
    else if (auto* button = qobject_cast<QAbstractButton*>(&widget))
        SetText<QAbstractButton>(*button, "tag", &QAbstractButton::text, &QAbstractButton::setText);
    else if (auto* group = qobject_cast<QGroupBox*>(&widget))
        SetText<QGroupBox>(*group, "tag", &QGroupBox::title, &QGroupBox::setTitle);
    else if (auto* line = qobject_cast<QLineEdit*>(&widget))
        SetText<QLineEdit>(*line, "tag", &QLineEdit::placeholderText, &QLineEdit::setPlaceholderText);
    else if (auto* tabs = qobject_cast<QTabBar*>(&widget))
        SetTabTexts(*tabs);
    else if (auto* tree = qobject_cast<QTreeWidget*>(&widget))
        SetHeaderTexts(*tree);
}

}  // namespace

QString WithoutMnemonic(const QString& text)
{
    static const QRegularExpression behind(QStringLiteral("\\(&[^&]\\)"));
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(text).remove(behind).replace(mark, QStringLiteral("\\1"));
}

void SetTextContext(QObject& control, const char* context)
{
    control.setProperty(kContext, QByteArray(context));
}

void SetFormTexts(QWidget& form)
{
    SetWidgetTexts(form);
    // Menus are titled by an action of their own, which is among the children too.
    for (QAction* action : form.findChildren<QAction*>())
        SetActionTexts(*action);
    for (QWidget* widget : form.findChildren<QWidget*>())
        SetWidgetTexts(*widget);
}

}  // namespace rqm5
