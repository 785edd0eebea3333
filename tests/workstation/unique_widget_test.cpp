#include "workstation/unique_widget.h"

#include "core/global_nodes.h"

#include <QDialog>
#include <QPointer>

#include <gtest/gtest.h>

TEST(UniqueWidget, ASecondOneEndsTheFirstOfItsKeyOnly)
{
    ASSERT_TRUE(host::buildGlobalNodes());
    const QPointer<QDialog> first = new QDialog;
    const QPointer<QDialog> move = new QDialog;
    palx::makeUniqueDialog(first);
    palx::makeUniqueMoveDialog(move);
    EXPECT_TRUE(first->testAttribute(Qt::WA_DeleteOnClose));
    EXPECT_TRUE(first->testAttribute(static_cast<Qt::WidgetAttribute>(97)));
    EXPECT_TRUE(first->property("unique").isValid());

    palx::makeUniqueDialog(first); // again: nothing
    ASSERT_FALSE(first.isNull());
    const QPointer<QDialog> second = new QDialog;
    palx::makeUniqueDialog(second);
    EXPECT_TRUE(first.isNull());
    EXPECT_FALSE(move.isNull());

    delete second.data(); // ended by itself: the key is free
    auto *third = new QDialog;
    palx::makeUniqueDialog(third);
    delete third;
    delete move.data();
    host::removeGlobalNodes();
}
