#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <vector>

#include "document/document.h"
#include "ui/option_group.h"

class QBoxLayout;
class QCheckBox;
class QGridLayout;

namespace rqm5 {

/// A group of option buttons and the setting it shows.
struct OptionSetting
{
    const char* name;
    const char* title;
    int ReceiverSettings::*value;
    std::span<const Option> options;
    int columns = 1;
    const char* tip = "";
};

struct CheckSetting
{
    const char* name;
    const char* caption;
    bool ReceiverSettings::*value;
    const char* tip = "";
};

/// A slider from 0 and the label that shows its value.
struct SliderSetting
{
    const char* name;
    const char* labelName;
    const char* caption;
    int ReceiverSettings::*value;
    int highest;
    const char* tip = "";
};

/// Builds settings controls from tables and keeps them and the settings equal: what the user changes is an
/// edit of the document at once, and every change of a setting is shown.
class SettingControls : public QObject
{
    Q_OBJECT

  public:
    /// \param context  translation context of the texts in the tables
    /// \param page     what the controls are on; SetFormTexts translates them there
    SettingControls(const char* context, Document& document, QWidget& page);

    OptionGroup* Add(const OptionSetting& setting);
    QCheckBox* Add(const CheckSetting& setting);
    void Add(const SliderSetting& setting, QGridLayout& grid);

    /// Shows every setting. Nothing counts as an edit.
    void Show();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    template <class T>
    void Store(T ReceiverSettings::*setting, T value, int run = 0);
    void EndRun(const QObject* slider) { runs_[slider] = document_.NewRun(); }

    const char* context_;
    Document& document_;
    std::map<const QObject*, int> runs_;  ///< of each slider: the edits that are one step
    std::vector<std::function<void()>> show_;
};

}  // namespace rqm5
