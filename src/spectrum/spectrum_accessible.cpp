#include "spectrum/spectrum_accessible.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "spectrum/spectrum_view.h"

namespace rqm5 {
namespace {

/// A channel, by the number of its mark.
class AccessibleMark : public QAccessibleInterface, public QAccessibleActionInterface
{
  public:
    AccessibleMark(SpectrumView& view, int mark) : view_(&view), mark_(mark) {}

    bool isValid() const override
    {
        return view_ != nullptr && mark_ < static_cast<int>(view_->Picture().marks.size());
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view_); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? view_->NameOfMark(mark_) : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override
    {
        const QRect place = isValid() ? view_->PlaceOfMark(mark_) : QRect();
        return place.isEmpty() ? place : place.translated(view_->mapToGlobal(QPoint()));
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.focusable = true;
        state.selectable = true;
        state.focused = view_->hasFocus() && view_->Current() == mark_;
        state.selected = view_->IsSelected(mark_);
        state.offscreen = view_->PlaceOfMark(mark_).isEmpty();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction() && isValid())
            view_->Choose(mark_);
    }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

  private:
    const QPointer<SpectrumView> view_;
    const int mark_;
};

/// The spectrum with its channels. They are made when somebody asks for them.
class AccessibleSpectrum : public QAccessibleWidget
{
  public:
    explicit AccessibleSpectrum(SpectrumView& view) : QAccessibleWidget(&view, QAccessible::List), view_(view)
    {
    }

    ~AccessibleSpectrum() override
    {
        for (const auto& entry : ids_)
            QAccessible::deleteAccessibleInterface(entry.second);
    }

    int childCount() const override { return static_cast<int>(view_.Picture().marks.size()); }

    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto [place, isNew] = ids_.try_emplace(index);
        if (isNew)
            place->second = QAccessible::registerAccessibleInterface(new AccessibleMark(view_, index));
        return QAccessible::accessibleInterface(place->second);
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override
    {
        for (const auto& [index, id] : ids_)
            if (QAccessible::accessibleInterface(id) == wanted)
                return index;
        return -1;
    }

    QAccessibleInterface* focusChild() const override
    {
        return view_.hasFocus() && view_.Current() >= 0 ? child(view_.Current()) : nullptr;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint position = view_.mapFromGlobal(QPoint(x, y));
        for (int mark = 0; mark < childCount(); ++mark)
            if (view_.PlaceOfMark(mark).contains(position))
                return child(mark);
        return nullptr;
    }

  private:
    SpectrumView& view_;
    mutable std::map<int, QAccessible::Id> ids_;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<SpectrumView*>(object);
    return view != nullptr ? new AccessibleSpectrum(*view) : nullptr;
}

}  // namespace

void InstallSpectrumAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}

}  // namespace rqm5
