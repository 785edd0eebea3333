#include "support/test_support.h"
#include "ui/form_checks.h"
#include "ui/layer_series_dialog.h"
#include "ui/nesting_wizards.h"
#include "ui/page_fixture.h"
#include "ui/recipe_frame.h"

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Every page of every wizard, shown on a panel of that size.
template <typename Visit> void eachWizardPage(const QSize &panel, Visit visit)
{
    PluginTree tree;
    orba::ModuleObject *stack = tree.addRecipe("Box");
    const std::unique_ptr<RecipeWizard> wizards[] = {
        std::make_unique<PlanarNestingWizard>(stack, nullptr),
        std::make_unique<CascadeNestingWizard>(stack, nullptr),
        std::make_unique<FeedingDirectionWizard>(stack, nullptr)};
    for (const auto &wizard : wizards) {
        wizard->resize(panel);
        wizard->show();
        for (int page = 0; page < wizard->pages().size(); ++page) {
            QCoreApplication::processEvents();
            visit(wizard.get(), wizard->pages()[page]);
            if (page + 1 < wizard->pages().size())
                wizard->next();
        }
    }
}

const QScrollArea *areaOf(const RecipeFrame *page)
{
    return qobject_cast<const QScrollArea *>(page->parentWidget()->parentWidget());
}

} // namespace

TEST(WizardForms, FitThePanelsTheyAreMadeFor)
{
    const Looks looks;
    for (const QSize size : {QSize(1024, 640), QSize(1280, 800)}) {
        eachWizardPage(size, [size](RecipeWizard *wizard, RecipeFrame *page) {
            const QString where = QStringLiteral("%1 at %2: ").arg(page->objectName()).arg(size.width());
            EXPECT_FALSE(areaOf(page)->verticalScrollBar()->isVisible()) << where;
            EXPECT_FALSE(areaOf(page)->horizontalScrollBar()->isVisible()) << where;
            expectReadable(wizard, where);
            EXPECT_EQ(wizard->size(), size) << where << "something pushed the window open";
        });
    }
}

TEST(WizardForms, LeaveRoomForLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    eachWizardPage(QSize(1024, 640), [](RecipeWizard *wizard, RecipeFrame *page) {
        EXPECT_FALSE(areaOf(page)->horizontalScrollBar()->isVisible()) << page->objectName();
        expectReadable(wizard, page->objectName() + QLatin1Char(' '));
    });
}

TEST(WizardForms, ControlsHaveNamesAndAreLargeEnoughForFingers)
{
    const Looks looks;
    int count = 0;
    eachWizardPage(QSize(1280, 800), [&count](RecipeWizard *wizard, RecipeFrame *page) {
        expectTouchable(wizard, page->objectName());
        count += expectNamed(wizard, page->objectName());
    });
    EXPECT_GT(count, 100);
}

TEST(WizardForms, TheDialogOfLayersInTurnFitsASmallPanel)
{
    const Looks looks;
    const LongLanguage language;
    PluginTree tree;
    LayerSeriesDialog dialog(tree.addRecipe("Box"), 0, nullptr);
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_LE(dialog.width(), 1024);
    EXPECT_LE(dialog.height(), 640);
    expectReadable(&dialog, QStringLiteral("layers in turn "));
    expectTouchable(&dialog, QStringLiteral("layers in turn "));
    EXPECT_GT(expectNamed(&dialog, QStringLiteral("layers in turn ")), 5);
}

TEST(WizardForms, FollowAChangeOfLanguage)
{
    PluginTree tree;
    CascadeNestingWizard wizard(tree.addRecipe("Box"), nullptr);
    wizard.show();
    const QString before = wizard.windowTitle();
    {
        const LongLanguage language;
        QCoreApplication::processEvents();
        EXPECT_GT(wizard.windowTitle().size(), before.size());
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(wizard.windowTitle(), before);
}
