#pragma once

#include "shell/host_session.h"

#include <QWidget>

namespace panel {

class LogPage;
class Navigator;
class ProblemPage;
class PanelPresenter;
class StatusStrip;

/// The panel's main window: navigator, centre widget, status strip. Places a session's centre widget and
/// opens the first navigator entry's page, or a page with the problems when no plug-in came up.
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kWidth = 1280;
    static constexpr int kHeight = 800;

    /// The session has been started; it and the presenter must outlive the window's use.
    PanelWindow(host::HostSession *session, PanelPresenter *presenter, QWidget *parent = nullptr);
    ~PanelWindow() override;

    void openPage(const QString &key);
    LogPage *log() const { return log_; }

protected:
    void changeEvent(QEvent *event) override;
    /// Saves first; when that fails the operator may keep the panel open.
    void closeEvent(QCloseEvent *event) override;

private:
    void addOwnPages();
    void showProblem(const QString &text);
    void openFirstPage();
    void retranslate();

    host::HostSession *session_;
    bwaf::CenterWidget *center_;
    Navigator *navigator_;
    StatusStrip *status_;
    LogPage *log_;
    ProblemPage *problems_ = nullptr; ///< only when the start found some
};

} // namespace panel
