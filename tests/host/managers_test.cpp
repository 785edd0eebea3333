#include "bwaf/bmodule.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace {

using Adders = orba::CreatorManager<int, int(int)>;

} // namespace

TEST(Managers, KeepTheFirstFunctionOfAKeyAndTheOrderOfKeys)
{
    Adders adders(QStringLiteral("adders"));
    EXPECT_TRUE(adders.regist(QStringLiteral("z"), [](int n) { return n + 1; }));
    EXPECT_TRUE(adders.regist(QStringLiteral("a"), [](int n) { return n + 2; }));
    EXPECT_FALSE(adders.regist(QStringLiteral("z"), [](int n) { return n + 100; }));
    EXPECT_EQ(adders.keys(), QStringList({QStringLiteral("z"), QStringLiteral("a")}));
    EXPECT_EQ(adders.create(QStringLiteral("z"), 5), 6);
    EXPECT_EQ(adders.create(QStringLiteral("none"), 5), 0);
}
