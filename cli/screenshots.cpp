#include "screenshots.h"

#include "bwaf/bmodule.h"
#include "example_cell.h"
#include "exchange_pictures.h"
#include "file_pictures.h"
#include "ix/xtheme.h"
#include "move_pictures.h"
#include "nexo/setting_manager.h"
#include "panel/message_dialog.h"
#include "panel/panel_window.h"
#include "pattern_pictures.h"
#include "plan_pictures.h"
#include "project_pictures.h"
#include "recipe_commands.h"
#include "run_pictures.h"
#include "stack/shared_lists.h"
#include "stack/way_points.h"
#include "ui/pattern_view.h"
#include "ui/recipe_frame.h"
#include "ui/recipe_wizard.h"
#include "ui/stack_panel.h"
#include "ui/stackhomepage.h"
#include "workstation/plugin_node.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include <functional>

namespace cli {
namespace {

/// The recipe that the pages show, when it is among the examples: the one with the most to see.
const QString kShownRecipe = QStringLiteral("Interlocked 1200x800");

/// Lets everything happen that is due now: layouts, pictures drawn one by one. Bounded, so that a page that
/// never comes to rest cannot keep the command.
void settle()
{
    constexpr int kMostTurns = 2000;
    for (int i = 0; i < kMostTurns; ++i) {
        QCoreApplication::sendPostedEvents();
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            return;
    }
}

/// Takes the pictures and keeps the first thing that went wrong.
class Camera
{
public:
    Camera(panel::PanelWindow *window, const QDir &folder) : window_(window), folder_(folder) {}

    void takePage(const QString &key, const QString &name)
    {
        window_->openPage(key);
        take(window_, name);
    }

    /// The page as it looks after a button was pressed.
    void takeAfter(QAbstractButton *button, const QString &name)
    {
        button->click();
        take(window_, name);
    }

    /// The dialog that `open` brings up, whether or not it waits for the answer; it is refused afterwards.
    void takeDialog(const std::function<void()> &open, const QString &name)
    {
        bool taken = false;
        const auto shoot = [this, name, &taken] {
            auto *dialog = taken ? nullptr : qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            taken = true;
            dialog->grab(); // lays it out
            take(dialog, name);
            dialog->reject();
        };
        QTimer::singleShot(0, window_, shoot); // for a dialog that waits inside `open`
        open();
        shoot();
        settle();
        if (!taken)
            fail(QStringLiteral("no dialog came up for ") + name);
    }

    /// A window as it stands.
    void takeWindow(QWidget *widget, const QString &name)
    {
        widget->grab(); // lays it out
        take(widget, name);
    }

    void fail(const QString &reason)
    {
        if (error_.isEmpty())
            error_ = reason;
    }
    int count() const { return count_; }
    QString error() const { return error_; }
    panel::PanelWindow *window() const { return window_; }

private:
    void take(QWidget *widget, const QString &name)
    {
        settle();
        const QString file = folder_.filePath(name + QStringLiteral(".png"));
        if (widget->grab().save(file, "PNG"))
            ++count_;
        else
            fail(QStringLiteral("cannot write ") + file);
    }

    panel::PanelWindow *window_;
    QDir folder_;
    int count_ = 0;
    QString error_;
};

/// A control of the page that is shown; null, with the reason kept, when there is none of that name.
template <typename Control> Control *control(Camera &camera, const QString &name)
{
    for (Control *found : camera.window()->findChildren<Control *>(name)) {
        if (found->isVisible())
            return found;
    }
    camera.fail(QStringLiteral("the page has no control ") + name);
    return nullptr;
}

void takeDialogOf(Camera &camera, const QString &buttonName, const QString &name)
{
    if (auto *button = control<QAbstractButton>(camera, buttonName))
        camera.takeDialog([button] { button->click(); }, name);
}

void takeHome(Camera &camera)
{
    camera.takePage(mName(palx::getPluginName(), QStringLiteral("home_page")), QStringLiteral("home"));
    takeDialogOf(camera, QStringLiteral("btnNew"), QStringLiteral("new-recipe"));
    takeDialogOf(camera, QStringLiteral("btnDelete"), QStringLiteral("delete-recipe"));
    takeDialogOf(camera, QStringLiteral("btnController"), QStringLiteral("controller-recipes"));
    if (!showExchange(camera.window(),
                      [&camera](QWidget *dialog, const QString &name) { camera.takeWindow(dialog, name); }))
        camera.fail(QStringLiteral("the dialogs of import and export did not come up"));
}

/// What a touch on a field brings up.
void takeKeys(Camera &camera, QLineEdit *field, const QString &name)
{
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride(QStringLiteral("touch"), QStringLiteral("true"));
    camera.takeDialog(
        [field] {
            QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                                Qt::NoModifier);
            QApplication::sendEvent(field, &release);
        },
        name);
    settings->setOverride(QStringLiteral("touch"), QString());
}

/// The shown buttons of which one is down: those that choose a frame, or a part of one.
QList<QAbstractButton *> choosers(const Camera &camera)
{
    QList<QAbstractButton *> buttons;
    for (QAbstractButton *button : camera.window()->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->isCheckable() && button->autoExclusive())
            buttons.append(button);
    }
    return buttons;
}

/// Those that choose a part of the frame other than the one that is shown.
QList<QAbstractButton *> otherParts(const Camera &camera, const QList<QAbstractButton *> &frames)
{
    QList<QAbstractButton *> parts;
    for (QAbstractButton *button : choosers(camera)) {
        if (!frames.contains(button) && !button->isChecked())
            parts.append(button);
    }
    return parts;
}

/// "btnProduct" becomes "product".
QString stem(const QAbstractButton *button)
{
    return button->objectName().mid(3).toLower();
}

/// The plan in place of the stack, and the dialog behind an entry of the menu.
void takeLayers(Camera &camera)
{
    auto *plan = control<QAbstractButton>(camera, QStringLiteral("btnPlan"));
    auto *more = control<QPushButton>(camera, QStringLiteral("btnMore"));
    if (!plan || !more)
        return;
    camera.takeAfter(plan, QStringLiteral("setup-layers-plan"));
    plan->click();
    camera.takeDialog([more] { more->menu()->actions().first()->trigger(); }, QStringLiteral("layer-series"));
}

/// The parts of the calibration of a recipe that shares tool and work objects with others.
void takeShared(Camera &camera)
{
    auto *recipe = control<QComboBox>(camera, QStringLiteral("cmbRecipe"));
    orba::ModuleObject *stack = palx::getStack(recipe ? recipe->currentText() : QString());
    const orba::Node plugin = palx::pluginNode()->node();
    for (const char *key : {"use_global_tool", "use_global_wobj"})
        stack->set(nullptr, key, true);
    palx::ensureSharedLists(stack);
    palx::triggerNode()->c("refresh_data")->trigger();
    for (const char *part : {"btnTool", "btnPlace", "btnIncoming"})
        if (auto *button = control<QAbstractButton>(camera, QLatin1String(part)))
            camera.takeAfter(button, QStringLiteral("setup-calibration-shared-") + stem(button));
    for (const char *key : {"use_global_tool", "use_global_wobj"})
        stack->set(nullptr, key, false);
    for (const char *key : {"global_tool", "global_wobj"})
        palx::pluginNode()->c(key)->copyFrom(*plugin.find(orba::Path(key)));
    palx::triggerNode()->c("refresh_data")->trigger();
}

void takeDialogsOfFrame(Camera &camera, const QString &frame)
{
    if (frame == QLatin1String("product")) {
        if (auto *number = control<QAbstractSpinBox>(camera, QStringLiteral("spnLength")))
            takeKeys(camera, number->findChild<QLineEdit *>(), QStringLiteral("keypad"));
        if (auto *text = control<QLineEdit>(camera, QStringLiteral("edtDesc")))
            takeKeys(camera, text, QStringLiteral("keyboard"));
    }
    if (frame == QLatin1String("layers"))
        takeLayers(camera);
    if (frame == QLatin1String("calibration"))
        takeShared(camera);
    if (frame != QLatin1String("patterns"))
        return;
    if (!showPlanEdits(camera.window(), [&camera](const QString &name) {
            camera.takeWindow(camera.window(), QStringLiteral("setup-patterns-") + name);
        }))
        camera.fail(QStringLiteral("the page of patterns has no plan to edit"));
    if (auto *tab = control<QAbstractButton>(camera, QStringLiteral("tabPattern")))
        tab->click();
    const auto take = [&camera](QWidget *dialog, const QString &name) { camera.takeWindow(dialog, name); };
    if (!showPatternDialogs(camera.window(), take))
        camera.fail(QStringLiteral("a dialog of the page of patterns did not come up"));
}

/// Every frame of the set-up page, every part of a frame, and the dialogs of frames.
void takeSetup(Camera &camera)
{
    auto *open = control<QAbstractButton>(camera, QStringLiteral("btnOpen"));
    if (!open)
        return;
    open->click();
    settle();
    const QList<QAbstractButton *> frames = choosers(camera);
    for (QAbstractButton *frame : frames) {
        const QString name = QStringLiteral("setup-") + stem(frame);
        camera.takeAfter(frame, name);
        for (QAbstractButton *part : otherParts(camera, frames))
            camera.takeAfter(part, name + QLatin1Char('-') + stem(part));
        takeDialogsOfFrame(camera, stem(frame));
    }
}

/// The page of a wizard as it opens, and with something chosen on it.
void takeWizardPage(Camera &camera, RecipeWizard *wizard, const QString &name)
{
    camera.takeWindow(wizard, name);
    RecipeFrame *page = wizard->pages()[wizard->page()];
    if (auto *view = page->findChild<PatternView *>())
        view->editing()->select({4});
    auto *panel = page->findChild<StackPanel *>();
    if (auto *slider = panel ? panel->findChild<QSlider *>() : nullptr)
        slider->setValue(slider->maximum() * 2 / 3);
    camera.takeWindow(wizard, name + QStringLiteral("-chosen"));
}

/// Every page of every wizard.
void takeWizards(Camera &camera)
{
    auto *button = control<QPushButton>(camera, QStringLiteral("btnWizard"));
    if (!button)
        return;
    for (QAction *entry : button->menu()->actions()) {
        entry->trigger();
        auto *wizard = camera.window()->findChild<RecipeWizard *>();
        if (!wizard)
            return camera.fail(QStringLiteral("no wizard came up for ") + entry->objectName());
        for (int page = 0; page < wizard->pages().size(); ++page) {
            takeWizardPage(camera, wizard, QStringLiteral("%1-%2").arg(entry->objectName()).arg(page + 1));
            if (page + 1 < wizard->pages().size())
                wizard->next();
        }
        wizard->reject();
        settle();
    }
}

/// The panel's own pages.
void takeOthers(Camera &camera, bwaf::CenterWidget *center)
{
    for (const QString &key : center->pageKeys()) {
        if (!key.startsWith(palx::getPluginName()))
            camera.takePage(key, QString(key).replace(QLatin1Char('.'), QLatin1Char('-')));
    }
    camera.window()->openPage(QStringLiteral("panel.notices"));
    takeDialogOf(camera, QStringLiteral("btnExport"), QStringLiteral("log-export"));
    takeDialogOf(camera, QStringLiteral("btnClear"), QStringLiteral("log-clear"));
}

/// The dialog that drives the robot, with a controller of its own.
void takeMoves(Camera &camera)
{
    const auto take = [&camera](QWidget *dialog, const QString &name) { camera.takeWindow(dialog, name); };
    if (!showMoves(camera.window(), take))
        camera.fail(QStringLiteral("the simulated controller does not answer"));
}

/// The project manager, with a controller of its own.
void takeProjects(Camera &camera)
{
    camera.window()->openPage(mName(palx::getPluginName(), QStringLiteral("home_page")));
    const auto take = [&camera](QWidget *widget, const QString &name) { camera.takeWindow(widget, name); };
    if (!showProjects(camera.window(), take))
        camera.fail(QStringLiteral("no project was made"));
}

/// The line and its cell while they work, with a controller of their own.
void takeRun(Camera &camera)
{
    const auto take = [&camera](QWidget *widget, const QString &name) { camera.takeWindow(widget, name); };
    if (!showRun(camera.window(), take))
        camera.fail(QStringLiteral("the line did not come to run"));
}

/// The file dialog, and what is shown while files are written.
void takeFiles(Camera &camera)
{
    const auto take = [&camera](QWidget *dialog, const QString &name) { camera.takeWindow(dialog, name); };
    if (!showFileDialogs(camera.window(), take))
        camera.fail(QStringLiteral("the disk of the file dialog cannot be made up"));
}

bool fillPages(const QString &examples)
{
    QString error;
    for (const QString &file : exampleFiles(examples, &error)) {
        if (!loadRecipes(file))
            return false;
    }
    if (!error.isEmpty())
        say(error);
    for (orba::ModuleObject *stack : palx::stacksNode()->cmobjs())
        palx::genStackWayPoints(stack);
    return error.isEmpty();
}

void chooseRecipe(host::HostSession &host)
{
    for (bwaf::BModule *page : host.module(palx::getPluginName())->submodules()) {
        if (auto *home = qobject_cast<StackHomePage *>(page))
            home->chooseRecipe(kShownRecipe);
    }
}

QString takeAll(Session &session, const ScreenshotRequest &request, int *count)
{
    panel::PanelPresenter presenter;
    panel::PanelWindow window(&session.host(), &presenter);
    window.resize(request.size);
    session.host().render();
    window.show();
    settle();
    session.host().idle();
    chooseRecipe(session.host());
    Camera camera(&window, QDir(request.folder));
    {
        ExampleCell cell;
        if (!cell.show(&window))
            return QStringLiteral("the simulated controller does not tell its recipes");
        takeHome(camera);
        takeSetup(camera);
        takeWizards(camera);
        takeOthers(camera, session.host().centerWidget());
    }
    camera.takePage(QStringLiteral("panel.controller"), QStringLiteral("panel-controller-gone"));
    takeMoves(camera);
    takeRun(camera);
    takeProjects(camera);
    takeFiles(camera);
    *count = camera.count();
    return camera.error();
}

} // namespace

QStringList exampleFiles(const QString &folder, QString *error)
{
    QStringList files;
    for (const QString &name :
         QDir(folder).entryList({QStringLiteral("*.xml"), QStringLiteral("*.json")}, QDir::Files, QDir::Name))
        files.append(QDir(folder).filePath(name));
    if (files.isEmpty())
        *error = folder + QStringLiteral(": no example recipes (*.xml, *.json) there");
    return files;
}

int runScreenshots(const ScreenshotRequest &request)
{
    if (!QDir().mkpath(request.folder))
        return refuse(request.folder + QStringLiteral(": the folder cannot be made"));
    ix::xtheme::apply(qobject_cast<QApplication *>(QCoreApplication::instance()));
    Session session(Session::Pages::With, request.language);
    if (!session.start() || !fillPages(request.examples))
        return kRefused;
    int count = 0;
    const QString error = takeAll(session, request, &count);
    if (!error.isEmpty())
        return refuse(error);
    return putResult(QStringLiteral("pages  %1 pictures of pages and dialogs\n").arg(count).toUtf8())
               ? kDone
               : kRefused;
}

} // namespace cli
