#include "ui/automatic_stacker_dialog.h"
#include "ui/keypad.h"
#include "ui/name_dialog.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"
#include "ui/stackhomepage.h"
#include "ui/stacksetuppage.h"

#include "ix/xtheme.h"
#include "support/test_support.h"
#include "ui/base_sub_page.h"
#include "ui/controller_dialog.h"
#include "ui/dialog_fixture.h"
#include "ui/form_checks.h"
#include "ui/page_fixture.h"
#include "ui/page_scroll.h"
#include "ui/point_group.h"
#include "ui/recipe_frame.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// The project manager in its two views: looking at a project, and adding one.
template <typename Visit> void eachProjectView(Pages &pages, Visit visit)
{
    QWidget *manager = pages.home->subPages()->openSubPage(QStringLiteral("project_manager"));
    for (const char *button : {"btnTasks", "btnVariables", "btnParameters", "btnAdd", "btnCancel"}) {
        manager->findChild<QAbstractButton *>(QLatin1String(button))
            ->setEnabled(true); // without a controller, too
        manager->findChild<QAbstractButton *>(QLatin1String(button))->click();
        QCoreApplication::processEvents();
        visit(manager, QStringLiteral("projects after %1: ").arg(QLatin1String(button)));
    }
    pages.home->subPages()->closeSubPage();
}

enum class Parts { First, All };

/// Every frame in turn with its scroll bars; all parts of a frame that its tabs show, or the first one.
template <typename Visit> void eachFrame(Pages &pages, Parts parts, Visit visit)
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

/// The dialogs that put products into patterns, over a small panel.
template <typename Visit> void eachPatternDialog(Visit visit)
{
    OpenPattern open;
    open.window.resize(1024, 640);
    open.window.show();
    const auto show = [&](QDialog &dialog) {
        dialog.show();
        QCoreApplication::processEvents();
        visit(&dialog);
    };
    NewPatternDialog naming(open.stack->r("patterns"), QStringLiteral("A"), &open.window);
    show(naming);
    AutomaticStackerDialog stacker(open.stack, &open.scene, &open.window);
    show(stacker);
    PatternTemplateDialog producer(open.stack, &open.scene, &open.window);
    for (int kind = 0; kind < 3; ++kind) {
        producer.findChild<QComboBox *>()->setCurrentIndex(kind);
        show(producer);
    }
}

} // namespace

TEST(Forms, PatternDialogsFitASmallPanelAndAFinger)
{
    const Looks looks;
    int count = 0;
    eachPatternDialog([&count](QDialog *dialog) {
        const QString where = QLatin1String(dialog->metaObject()->className()) + QLatin1Char(' ');
        EXPECT_LE(dialog->width(), 1024) << where;
        EXPECT_LE(dialog->height(), 640) << where;
        expectReadable(dialog, where);
        for (const QWidget *control : controls(dialog)) {
            EXPECT_FALSE(control->objectName().isEmpty()) << where;
            if (!control->isVisible())
                continue;
            EXPECT_FALSE(control->accessibleName().isEmpty()) << where << control->objectName();
            EXPECT_GE(control->height(), 56) << where << control->objectName();
            ++count;
        }
    });
    EXPECT_GT(count, 30);
}

TEST(Forms, PatternDialogsLeaveRoomForLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    eachPatternDialog([](QDialog *dialog) {
        const QString where = QLatin1String(dialog->metaObject()->className()) + QLatin1Char(' ');
        EXPECT_LE(dialog->width(), 1024) << where;
        EXPECT_LE(dialog->height(), 640) << where;
        expectReadable(dialog, where);
    });
}

TEST(Forms, EveryControlHasANameForTestsAndForReaders)
{
    Pages pages;
    pages.home->subPages()->openSubPage(QStringLiteral("project_manager"));
    Keypad keypad(KeypadRequest{QStringLiteral("Length"), {}, 0, 1, 0, 0}, &pages.center);
    NameDialog name(
        QStringLiteral("Name"), [](const QString &) { return QString(); }, &pages.center);
    EXPECT_GT(expectNamed(&pages.center, QString()), 100);
}

TEST(Forms, FitThePanelsTheyAreMadeFor)
{
    const Looks looks;
    for (const QSize size : {QSize(1024, 640), QSize(1120, 700), QSize(1280, 760)}) {
        Pages pages;
        pages.tree.addRecipe("Box");
        pages.center.resize(size);
        QCoreApplication::processEvents();
        expectReadable(pages.home->wgt(), QStringLiteral("home "));
        eachProjectView(pages, expectReadable);
        pages.open("Box");
        // The lowest panel scrolls where a part has more fields than others.
        const Parts parts = size.height() < 700 ? Parts::First : Parts::All;
        eachFrame(pages, parts, [&](RecipeFrame *frame, QScrollArea *area) {
            const QString where = QStringLiteral("%1 at %2: ").arg(frame->objectName()).arg(size.width());
            EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << where;
            EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << where;
            expectReadable(frame, where);
        });
        EXPECT_EQ(pages.center.size(), size); // nothing pushed the window open
    }
}

TEST(Forms, LeaveRoomForLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    Pages pages;
    pages.tree.addRecipe("Box");
    QCoreApplication::processEvents();
    expectReadable(pages.home->wgt(), QStringLiteral("home "));
    eachProjectView(pages, expectReadable);
    pages.open("Box");
    eachFrame(pages, Parts::All, [](RecipeFrame *frame, QScrollArea *area) {
        EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << frame->objectName();
        expectReadable(frame, frame->objectName() + QLatin1Char(' '));
        for (const PageScroll *page : frame->findChildren<PageScroll *>()) // whose bar would not show it
            EXPECT_GE(page->viewport()->width(), page->widget()->minimumSizeHint().width())
                << page->widget()->objectName();
    });
}

TEST(Forms, ControlsAreLargeEnoughForFingers)
{
    const Looks looks;
    Pages pages;
    pages.tree.addRecipe("Box");
    eachProjectView(pages, expectTouchable);
    pages.open("Box");
    eachFrame(pages, Parts::All,
              [](RecipeFrame *frame, QScrollArea *) { expectTouchable(frame, frame->objectName()); });
}

TEST(Forms, TheControllerDialogFitsTheSmallPanelInLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    Pages pages;
    pages.tree.addRecipe("Box");
    pages.field<QPushButton>("btnController")->click();
    QCoreApplication::processEvents();
    auto *dialog = pages.center.findChild<ControllerDialog *>();
    ASSERT_NE(dialog, nullptr);
    expectReadable(dialog, QStringLiteral("controller "));
    expectTouchable(dialog, QStringLiteral("controller "));
    EXPECT_LE(dialog->width(), 1024);
    EXPECT_LE(dialog->height(), 640);
    for (const QWidget *control : controls(dialog)) {
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName();
    }
}

TEST(Forms, FollowAChangeOfLanguage)
{
    Pages pages;
    pages.tree.addRecipe("Box");
    pages.open("Box");
    auto *title = pages.field<QLabel>("lblTitle");
    const QString before = title->text();
    QHash<const QWidget *, QVariant> chosen;
    for (const QComboBox *combo : pages.setup->wgt()->findChildren<QComboBox *>())
        chosen.insert(combo, combo->currentIndex());
    {
        const LongLanguage language;
        QCoreApplication::processEvents();
        EXPECT_GT(title->text().size(), before.size());
        for (const char *name : {"cmbDirection", "cmbPosition", "cmbPoint", "cmbSpecification"}) {
            for (const QComboBox *combo : pages.setup->wgt()->findChildren<QComboBox *>(QLatin1String(name)))
                EXPECT_EQ(combo->currentIndex(), chosen.value(combo)) << name;
        }
        auto *group = pages.field<PointGroup>("grpPutPoint");
        EXPECT_GT(group->findChild<QLabel *>(QStringLiteral("lblTitle"))->text().size(), 11);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(title->text(), before);
}
