#pragma once

#include <QGroupBox>
#include <span>

class QAbstractButton;
class QButtonGroup;
class QRadioButton;

namespace rqm5 {

struct Option
{
    int value;
    const char* caption;  ///< as designed, in the context given to the group
};

/// A titled box of option buttons, of which one or none is chosen. Button of value i has the object name
/// NAME_i; the box itself is NAME.
class OptionGroup : public QGroupBox
{
    Q_OBJECT

  public:
    /// \param context  translation context of title and captions; SetFormTexts translates them
    /// \param columns  buttons beside each other
    OptionGroup(const char* context, const char* name, const char* title, std::span<const Option> options,
                int columns, QWidget* parent = nullptr);

    /// Chooses a value without telling anybody; a value that no button has leaves none chosen.
    void Select(int value);

    /// The chosen value, -1 when there is none.
    int Selected() const;

    QRadioButton* Button(int value) const;

  signals:
    /// The user chose a value.
    void Chosen(int value);

  private:
    void TakeTabStop(const QAbstractButton* chosen);

    QButtonGroup* buttons_;
};

}  // namespace rqm5
