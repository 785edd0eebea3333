// The dialog of project archives in both directions, on the smallest panel and in a long language.

#include "support/scripted_files.h"
#include "support/test_support.h"
#include "ui/exchange_table_model.h"
#include "ui/form_checks.h"
#include "ui/imexportprojectdialog.h"
#include "ui/message_bar.h"
#include "ui/page_fixture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

/// In both directions, with rows and a message: as high as it gets.
template <typename Visit> void eachDirection(Visit visit)
{
    PluginTree tree;
    for (const bool isImport : {false, true}) {
        ImExportProjectDialog dialog(isImport, nullptr, QString());
        QVector<ExchangeTableModel::Row> rows(
            8, {"Line north.zip", "Line north", QString(), false, QString(), ix::xtheme::State::None});
        dialog.findChild<ExchangeTableModel *>()->setRows(rows);
        dialog.findChild<MessageBar *>()->showUndo(QStringLiteral("Imported: Line north"),
                                                   ix::xtheme::State::Running);
        dialog.show();
        QCoreApplication::processEvents();
        visit(&dialog, isImport ? QStringLiteral("import: ") : QStringLiteral("export: "));
    }
}

} // namespace

TEST(ExchangeForm, FitsASmallPanelInALongLanguage)
{
    const Looks looks;
    const LongLanguage language;
    eachDirection([](QWidget *dialog, const QString &where) {
        EXPECT_LE(dialog->width(), 1024) << where;
        EXPECT_LE(dialog->minimumSizeHint().height(), 640) << where;
        expectReadable(dialog, where);
    });
}

TEST(ExchangeForm, ControlsHaveNamesAndAreLargeEnoughForFingers)
{
    const Looks looks;
    int count = 0;
    eachDirection([&count](QWidget *dialog, const QString &where) {
        expectTouchable(dialog, where);
        count += expectNamed(dialog, where);
    });
    EXPECT_GT(count, 15);
}

TEST(ExchangeForm, FollowsAChangeOfLanguage)
{
    PluginTree tree;
    ImExportProjectDialog dialog(true, nullptr, QString());
    const QString before = dialog.windowTitle();
    {
        const LongLanguage language;
        QCoreApplication::processEvents();
        EXPECT_GT(dialog.windowTitle().size(), before.size());
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.windowTitle(), before);
}
