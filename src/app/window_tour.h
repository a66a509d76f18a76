#pragma once

#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "app/main_window.h"
#include "link/qt_serial_port.h"
#include "simulator/sim_session.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Goes through the program's windows with a simulated receiver, every page and dialog filled with something
/// to see: for the pictures of the manual, and for tests that look at all windows. Settings are those of the
/// environment; give it a folder of its own.
class WindowTour : public Dialogs
{
  public:
    /// Looks at a window that shows now. The name goes by the window, or by what it shows.
    using Look = std::function<void(QWidget& window, const QString& name)>;

    explicit WindowTour(Look look);
    ~WindowTour() override;

    /// Starts the program and reads the receiver; the transfer is looked at while it runs.
    void Start();

    /// Everything else, window by window.
    void Go();

    frmMain& Window() { return *window_; }

    QMessageBox::StandardButton Ask(QWidget* parent, const Prompt& prompt) override;
    QString ChooseFile(QWidget* parent, FileChoice choice, const QString& suggested) override;
    QString ChooseFolder(QWidget* parent, const QString& title, const QString& suggested) override;
    int Run(QDialog& dialog) override;

  private:
    void Show(QWidget& window, const QString& name);
    void Trigger(const char* item);
    void ShowPages();
    void ShowFinds();
    void ShowBankMove();
    void ShowCompare();
    void ShowBackups(const QDateTime& day, const CloneImage& older, const CloneImage& newer);
    void ShowEditing();
    void ShowImports();
    void ShowDocks();
    void ShowDiagnostics();
    void ShowHelp();
    void ShowQuestions();
    void ShowConflict();
    template <typename Part>
    Part& Find(const char* name) const;

    Look look_;
    QTemporaryDir folder_;
    QString nextFile_;
    bool isAsking_ = false;   ///< questions and messages are expected, and looked at
    bool isWriting_ = false;  ///< what a write would send is accepted
    SimSession receiver_;
    QtSerialPort port_;
    std::unique_ptr<frmMain> window_;
};

}  // namespace rqm5
