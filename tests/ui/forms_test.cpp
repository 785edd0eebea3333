// All forms on the smallest panel, for fingers, readers and languages that need more room.

#include "ui/automatic_stacker_dialog.h"
#include "ui/base_sub_page.h"
#include "ui/controller_dialog.h"
#include "ui/exchange_table_model.h"
#include "ui/form_checks.h"
#include "ui/form_style.h"
#include "ui/hold_button.h"
#include "ui/imexportdialog.h"
#include "ui/imexportprojectdialog.h"
#include "ui/keypad.h"
#include "ui/layer_series_dialog.h"
#include "ui/long_work_dialog.h"
#include "ui/move_to_point.h"
#include "ui/name_dialog.h"
#include "ui/nesting_wizards.h"
#include "ui/page_fixture.h"
#include "ui/page_scroll.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"
#include "ui/robot_cell.h"
#include "ui/start_dialog.h"
#include "ui/stick_fixture.h"
#include "workstation/plugin_node.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Visit = std::function<void(QWidget *, const QString &)>;

void show(QWidget *dialog, const char *where, const Visit &visit)
{
    dialog->show();
    QCoreApplication::processEvents();
    visit(dialog, QLatin1String(where) + QLatin1Char(' '));
}

/// The file dialog in all its ways with a disk, and once without.
void eachFileDialog(QWidget *panel, const Visit &visit)
{
    Stick stick;
    stick.file(QString(QLatin1Char('W')).repeated(60) + QStringLiteral(".xml"));
    const QString filters = QStringLiteral("XML (*.xml);;All files (*)");
    const auto one = [&](FileRequest::Kind kind, const char *where) {
        FileDialog dialog(stick, kind, "pallet.xml", filters, panel);
        show(&dialog, where, visit);
    };
    one(FileRequest::Open, "open");
    one(FileRequest::OpenSeveral, "open several");
    one(FileRequest::Save, "save");
    one(FileRequest::Folder, "folder");
    stick.machine.setMounts({});
    one(FileRequest::Save, "no disk");
}

/// The dialogs that put products into patterns.
void eachPatternDialog(const Visit &visit)
{
    OpenPattern open;
    open.window.resize(1024, 640);
    open.window.show();
    NewPatternDialog naming(open.stack->r("patterns"), "A", &open.window);
    show(&naming, "pattern name", visit);
    AutomaticStackerDialog stacker(open.stack, &open.scene, &open.window);
    show(&stacker, "stacker", visit);
    PatternTemplateDialog producer(open.stack, &open.scene, &open.window);
    for (int kind = 0; kind < 3; ++kind) {
        producer.findChild<QComboBox *>()->setCurrentIndex(kind);
        show(&producer, "template", visit);
    }
}

/// The dialog of project archives with rows and a message: as high as it gets.
void eachProjectExchange(const Visit &visit)
{
    for (const bool isImport : {false, true}) {
        ImExportProjectDialog dialog(isImport, nullptr, QString());
        QVector<ExchangeTableModel::Row> rows(8, {{"Line north.zip"}, "Line north", QString(), false});
        dialog.findChild<ExchangeTableModel *>()->setRows(rows);
        dialog.findChild<MessageBar *>()->showUndo("Imported: Line north", ix::xtheme::State::Running);
        dialog.show();
        dialog.resize(dialog.minimumSizeHint());
        show(&dialog, isImport ? "project import" : "project export", visit);
    }
}

void eachMove(const Visit &visit)
{
    RobotCell cell;
    QWidget page;
    orba::ModuleObject point;
    point.copyFrom(nodeFromJson(pointJson(1.2, 0.6, 0.5)));
    palx::moveToPoint(&point, &page);
    cell.settle();
    show(page.findChild<MoveToDialog *>(), "move", visit);
}

void eachDialog(const Visit &visit)
{
    QWidget panel;
    panel.resize(1024, 640);
    panel.show();
    eachFileDialog(&panel, visit);
    eachPatternDialog(visit);
    eachMove(visit);
    Pages pages;
    eachProjectExchange(visit);
    LayerSeriesDialog series(pages.tree.addRecipe("Box"), 0, nullptr);
    show(&series, "layers in turn", visit);
    LongWorkDialog work("Export", nullptr);
    show(&work, "long work", visit);
    Keypad keypad(KeypadRequest{QStringLiteral("Length"), {}, 0, 1, 0, 0}, &panel);
    show(&keypad, "keypad", visit);
    NameDialog name(
        QStringLiteral("Name"), [](const QString &) { return QString(); }, &panel);
    show(&name, "name", visit);
    StartRequest request;
    request.accept = QStringLiteral("Start here");
    request.stack = palx::stacksNode()->cmobj(0)->node();
    StartDialog start(request, &panel);
    show(&start, "start", visit);
    for (const bool isImport : {false, true}) {
        pages.tree.addRecipe("A");
        ImExportDialog exchange(isImport, palx::stacksNode());
        show(&exchange, isImport ? "recipe import" : "recipe export", visit);
    }
    pages.field<QPushButton>("btnController")->click();
    show(pages.center.findChild<ControllerDialog *>(), "controller", visit);
}

/// Every page of every wizard on the smallest panel, with its scroll bars.
template <typename PageVisit> void eachWizardPage(PageVisit visit)
{
    PluginTree tree;
    orba::ModuleObject *stack = tree.addRecipe("Box");
    const std::unique_ptr<RecipeWizard> wizards[] = {
        std::make_unique<PlanarNestingWizard>(stack, nullptr),
        std::make_unique<CascadeNestingWizard>(stack, nullptr),
        std::make_unique<FeedingDirectionWizard>(stack, nullptr)};
    for (const auto &wizard : wizards) {
        wizard->resize(1024, 640);
        wizard->show();
        for (RecipeFrame *page : wizard->pages()) {
            QCoreApplication::processEvents();
            visit(wizard.get(), page, qobject_cast<QScrollArea *>(page->parentWidget()->parentWidget()));
            if (page != wizard->pages().last())
                wizard->next();
        }
    }
}

/// The project manager in its views: looking at a project, and adding one.
void eachProjectView(Pages &pages, const Visit &visit)
{
    QWidget *manager = pages.home->subPages()->openSubPage("project_manager");
    for (const char *name : {"btnTasks", "btnVariables", "btnParameters", "btnAdd", "btnCancel"}) {
        auto *button = manager->findChild<QAbstractButton *>(QLatin1String(name));
        button->setEnabled(true); // without a controller, too
        button->click();
        QCoreApplication::processEvents();
        visit(manager, QStringLiteral("projects after %1: ").arg(QLatin1String(name)));
    }
    pages.home->subPages()->closeSubPage();
}

enum class Parts { First, All };

/// Every frame in turn with its scroll bars; all parts of a frame that its tabs show, or the first one.
template <typename FrameVisit> void eachFrame(Pages &pages, Parts parts, FrameVisit visit)
{
    for (int i = 0; i < pages.setup->frames().size(); ++i) {
        pages.setup->showFrame(i);
        RecipeFrame *frame = pages.setup->frames().at(i);
        QList<QAbstractButton *> tabs;
        for (QAbstractButton *button : frame->findChildren<QAbstractButton *>()) {
            if (parts == Parts::All && button->autoExclusive() && button->isCheckable())
                tabs << button;
        }
        for (int part = 0; part < std::max(tabs.size(), 1); ++part) {
            if (!tabs.isEmpty())
                tabs[part]->click();
            QCoreApplication::processEvents();
            visit(frame, qobject_cast<QScrollArea *>(frame->parentWidget()->parentWidget()));
        }
    }
}

} // namespace

TEST(Forms, DialogsFitASmallPanelAFingerAndLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    int count = 0;
    eachDialog([&count](QWidget *dialog, const QString &where) {
        EXPECT_LE(dialog->width(), 1024) << where;
        EXPECT_LE(dialog->height(), 640) << where;
        expectReadable(dialog, where);
        expectTouchable(dialog, where);
        count += expectNamed(dialog, where);
        const auto *hold = dialog->findChild<HoldButton *>();
        EXPECT_FALSE(hold && hold->height() < 96) << where;
        for (const QPushButton *button :
             dialog->findChildren<QPushButton *>()) // what Enter in a field presses
            EXPECT_FALSE(button->isDefault() && button->property("role").toString() != "primary")
                << where << button->objectName();
        const auto *files = dialog->findChild<QTableView *>("tblFiles");
        EXPECT_FALSE(files && files->isVisible() && files->rowHeight(0) < 56) << where;
    });
    EXPECT_GT(count, 150);
}

TEST(Forms, WizardsFitASmallPanelAFingerAndLongerLanguages)
{
    const Looks looks;
    eachWizardPage([](RecipeWizard *, RecipeFrame *page, QScrollArea *area) {
        EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << page->objectName();
    });
    const LongLanguage language;
    eachWizardPage([](RecipeWizard *wizard, RecipeFrame *page, QScrollArea *area) {
        EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << page->objectName();
        EXPECT_EQ(wizard->size(), QSize(1024, 640)) << page->objectName();
        expectReadable(wizard, page->objectName());
        expectTouchable(wizard, page->objectName());
        EXPECT_GT(expectNamed(wizard, page->objectName()), 5);
    });
}

TEST(Forms, PagesFitThePanelsTheyAreMadeFor)
{
    const Looks looks;
    for (const QSize size : {QSize(1024, 640), QSize(1120, 700)}) {
        Pages pages;
        pages.tree.addRecipe("Box");
        pages.center.resize(size);
        pages.open("Box");
        // The lowest panel scrolls where a part has more fields than others.
        const Parts parts = size.height() < 700 ? Parts::First : Parts::All;
        eachFrame(pages, parts, [&](RecipeFrame *frame, QScrollArea *area) {
            EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << frame->objectName() << size.width();
            EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << frame->objectName() << size.width();
        });
        pages.setup->wgt()->findChild<MessageBar *>()->showMessage("A message", ix::xtheme::State::Attention);
        eachFrame(pages, Parts::First, [&](RecipeFrame *frame, QScrollArea *area) {
            QCoreApplication::processEvents();
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << frame->objectName() << size.width();
        });
        EXPECT_EQ(pages.center.size(), size);
        EXPECT_EQ(pages.center.size(), size); // nothing pushed the window open
    }
}

TEST(Forms, PagesSuitFingersReadersAndLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    Pages pages;
    pages.tree.addRecipe("Box");
    QCoreApplication::processEvents();
    const QSize smallest = pages.home->wgt()->minimumSizeHint();
    EXPECT_LE(smallest.width(), 836); // of 1024 x 640, beside the navigator and above the line of messages
    EXPECT_LE(smallest.height(), 566);
    expectReadable(pages.home->wgt(), "home ");
    const auto check = [](QWidget *form, const QString &where) {
        expectReadable(form, where);
        expectTouchable(form, where);
    };
    eachProjectView(pages, check);
    pages.open("Box");
    eachFrame(pages, Parts::All, [&check](RecipeFrame *frame, QScrollArea *area) {
        EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << frame->objectName();
        check(frame, frame->objectName() + QLatin1Char(' '));
        for (const PageScroll *page : frame->findChildren<PageScroll *>()) // whose bar would not show it
            EXPECT_GE(page->viewport()->width(), page->widget()->minimumSizeHint().width())
                << page->widget()->objectName();
    });
    EXPECT_GT(expectNamed(&pages.center, QString()), 100);
}

TEST(Forms, KeepWhatIsChosenWhenTheLanguageChanges)
{
    Pages pages;
    pages.tree.addRecipe("Box");
    pages.open("Box");
    const auto title = [&] { return pages.field<QLabel>("lblTitle")->text(); };
    const QString before = title();
    QHash<const QComboBox *, int> chosen;
    for (const QComboBox *combo : pages.setup->wgt()->findChildren<QComboBox *>())
        chosen.insert(combo, combo->currentIndex());
    {
        const LongLanguage language;
        QCoreApplication::processEvents();
        EXPECT_GT(title().size(), before.size());
        for (auto combo = chosen.begin(); combo != chosen.end(); ++combo)
            EXPECT_EQ(combo.key()->currentIndex(), combo.value()) << combo.key()->objectName();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(title(), before);
}

TEST(Forms, TheLongestFileNameIsShownWhole)
{
    const Looks looks;
    const Stick stick;
    QWidget panel;
    panel.resize(1024, 640);
    FileDialog dialog(stick, FileRequest::Save, QString(), kFilter, &panel);
    dialog.show();
    for (const char *letter : {"W", "上"}) {
        dialog.type(QString::fromUtf8(letter).repeated(251));
        QCoreApplication::processEvents();
        const auto *label = partOf<QLabel>(dialog, "lblState");
        EXPECT_EQ(dialog.text().size(), 255);
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << letter;
        EXPECT_LE(dialog.height(), 640) << letter;
    }
}

TEST(Forms, TheWheelMovesThePageAndNoValue)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *field = new QDoubleSpinBox;
    field->setValue(20);
    layout->addWidget(field);
    page->setMinimumHeight(2000);
    const std::unique_ptr<QWidget> form(scrollingForm(page));
    const auto *scroll = qobject_cast<QScrollArea *>(form.get());
    form->resize(300, 200);
    form->show();
    QCoreApplication::processEvents();
    auto *edit = field->findChild<QLineEdit *>();
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(
        &wheel); // as from the window system, or it would not go on to what lies below
    qApp->notify(edit, &wheel);
    EXPECT_EQ(field->value(), 20);
    EXPECT_GT(scroll->verticalScrollBar()->value(), 0);
}
