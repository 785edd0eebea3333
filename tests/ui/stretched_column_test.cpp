#include "ui/form_style.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

/// Three columns, the middle one stretched.
struct Table
{
    Table()
    {
        model.setHorizontalHeaderLabels({"A", "B", "C"});
        setRow("1", "a word", "2");
        view.setModel(&model);
        setupTable(&view, 1, false);
        view.show();
    }
    void setRow(const char *a, const char *b, const char *c)
    {
        for (const auto &[column, text] : {std::pair(0, a), std::pair(1, b), std::pair(2, c)})
            model.setItem(0, column, new QStandardItem(QString::fromUtf8(text)));
    }
    int width(int column) const { return view.columnWidth(column); }
    int contents(int column) const
    {
        return static_cast<const QAbstractItemView &>(view).sizeHintForColumn(column);
    }
    int all() const { return view.horizontalHeader()->length(); }

    QStandardItemModel model;
    QTableView view;
};

} // namespace

TEST(StretchedColumn, TakesWhatTheOthersLeave)
{
    Table table;
    for (const int width : {600, 400, 800}) {
        table.view.resize(width, 200);
        QCoreApplication::processEvents();
        EXPECT_EQ(table.all(), table.view.viewport()->width()) << width;
        EXPECT_FALSE(table.view.horizontalScrollBar()->isVisible());
    }
}

TEST(StretchedColumn, KeepsRoomForItsContents)
{
    Table table;
    table.setRow("1", "a rather long sentence that needs room", "2");
    table.view.resize(200, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(table.width(1), table.contents(1));
    EXPECT_TRUE(table.view.horizontalScrollBar()->isVisible());
    table.setRow("1", "short", "a long sentence in another column, too long for the view");
    QCoreApplication::processEvents();
    EXPECT_GE(table.width(1), table.contents(1));
    EXPECT_GE(table.width(2), table.contents(2));
}

TEST(StretchedColumn, FollowsAnotherSetOfRows)
{
    Table table;
    table.view.resize(400, 200);
    QCoreApplication::processEvents();
    table.model.clear();
    table.model.setHorizontalHeaderLabels({"A", "B", "C"});
    table.setRow("1", "a word", "a word that is longer");
    QCoreApplication::processEvents();
    EXPECT_EQ(table.all(), table.view.viewport()->width());
    EXPECT_GE(table.width(2), table.contents(2));
}
