#include "ix/xtheme.h"
#include "nexo/setting_manager.h"
#include "panel/message_dialog.h"
#include "panel/panel_options.h"
#include "panel/panel_window.h"
#include "panel/quit_signals.h"
#include "panel/shown_report.h"

#include <QApplication>
#include <QDir>
#include <QTextCodec>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int kWrongUsage = 2;

int answer(FILE *stream, const QString &text, int code)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
    return code;
}

/// Read before there is an application with windows: Qt would take "--plugin" for its own, and help needs no
/// display.
panel::PanelOptions readOptions(int argc, char **argv)
{
    const QCoreApplication reader(argc, argv);
    return panel::parseOptions(QCoreApplication::arguments(), QCoreApplication::applicationDirPath());
}

/// A desktop has a folder in place of a USB disk, so that files can be exchanged without one.
void makeStandIn()
{
    const auto *settings = nexo::SettingManager::instance();
    const QString data = settings->getStr(QStringLiteral("data"));
    if (!data.isEmpty() && settings->getStr(QStringLiteral("removable")).isEmpty())
        QDir(data).mkpath(QStringLiteral("removable"));
}

int runPanel(const host::SessionOptions &options)
{
    const panel::QuitSignals signals;
    panel::PanelPresenter presenter;
    host::HostSession session(options);
    session.start(); // what failed is shown by the window
    makeStandIn();
    panel::PanelWindow window(&session, &presenter);
    session.render();
    if (qEnvironmentVariableIsSet("PALX_REPORT_SHOWN"))
        new panel::ShownReport(&window);
    window.show();
    QTimer::singleShot(0, &session, &host::HostSession::idle);
    return signals.came() ? 0 : QApplication::exec(); // the session saves at its end
}

} // namespace

int main(int argc, char **argv)
{
    // Names of files on disks are UTF-8, whatever the panel's own system says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(QStringLiteral("palx_panel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PALX_VERSION));
    const panel::PanelOptions options = readOptions(argc, argv);
    if (!options.refusal.isEmpty())
        return answer(stderr, options.refusal, kWrongUsage);
    if (options.wantsHelp)
        return answer(stdout, options.helpText, 0);
    if (options.wantsVersion)
        return answer(stdout, QCoreApplication::applicationVersion(), 0);

    int programOnly = 1;
    QApplication application(programOnly, argv);
    ix::xtheme::apply(&application);
    return runPanel(options.session);
}
