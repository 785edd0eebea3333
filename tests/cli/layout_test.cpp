#include "palx_run.h"

#include <gtest/gtest.h>

namespace {

using orba::Node;

const QStringList kSizes{"--product", "200x150", "--pallet", "1000x800"};

struct Result
{
    int code = -1;
    Node root;
    QByteArray err;
};

Result run(const QString &command, const QString &options, const QStringList &sizes = kSizes)
{
    const PalxRun ran =
        runPalx(QStringList{command} + sizes + options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    Result result;
    result.code = ran.code;
    result.err = ran.err;
    if (!ran.out.isEmpty())
        result.root = parsed(ran.out);
    return result;
}

/// "1: 98 198.5 0 Middle" for an item of the list.
QString item(const Node &root, int index)
{
    const Node &entry = *root.child(u"items")->at(index);
    return QStringLiteral("%1: %2 %3 %4 %5")
        .arg(entry.getInt(u"index"))
        .arg(entry.getDouble(u"h"))
        .arg(entry.getDouble(u"v"))
        .arg(entry.getInt(u"r"))
        .arg(entry.getString(u"direction"));
}

int itemCount(const Node &root)
{
    return root.child(u"items")->size();
}

} // namespace

TEST(Layout, LaysEveryKindInEveryPlacement)
{
    const struct
    {
        const char *options;
        int count;
        const char *first;
        const char *last;
    } cases[] = {
        {"--kind 0", 20, "1: 98 198.5 0 Middle", "20: 702 801.5 0 Middle"},
        {"--kind 0 --placement left", 20, "1: 98 801.5 0 TopRight", "20: 702 198.5 0 TopRight"},
        {"--kind 0 --placement right", 20, "1: 702 801.5 0 TopLeft", "20: 98 198.5 0 TopLeft"},
        {"--kind 1", 18, "1: 199 122.5 90 Middle", "18: 601 877.5 90 Middle"},
        {"--kind 1 --placement left", 18, "1: 199 877.5 90 TopRight", "18: 601 122.5 90 TopRight"},
        {"--kind 1 --placement right", 18, "1: 601 877.5 90 TopLeft", "18: 199 122.5 90 TopLeft"},
        {"--kind 2", 23, "1: 98 123 0 Middle", "23: 601 902 90 Middle"},
        {"--kind 2 --placement left", 23, "1: 98 877 0 TopRight", "23: 601 98 90 TopRight"},
        {"--kind 2 --placement right", 23, "1: 702 877 0 TopLeft", "23: 199 98 90 TopLeft"},
        {"--kind 0 --spacing 0", 25, "1: 100 100 0 Middle", "25: 700 900 0 Middle"},
        {"--kind 0 --margins 50x60", 16, "1: 173.5 198.5 0 Middle", "16: 626.5 801.5 0 Middle"},
        {"", 23, "1: 98 123 0 Middle", "23: 601 902 90 Middle"}, // the first with the most products
    };
    for (const auto &c : cases) {
        const Result result = run(QStringLiteral("layout"), QLatin1String(c.options));
        ASSERT_EQ(result.code, 0) << c.options << result.err.constData();
        EXPECT_EQ(result.root.getInt(u"count"), c.count) << c.options;
        ASSERT_EQ(itemCount(result.root), c.count) << c.options;
        EXPECT_EQ(item(result.root, 0), QLatin1String(c.first)) << c.options;
        EXPECT_EQ(item(result.root, c.count - 1), QLatin1String(c.last)) << c.options;
    }
}

TEST(Layout, ARingOfFour)
{
    const QStringList sizes{"--product", "300x200", "--pallet", "520x510", "--spacing", "0"};
    const QStringList placements{"plain", "left", "right"};
    const QStringList firsts{"1: 105 160 0 Middle", "1: 105 360 0 TopRight", "1: 405 360 0 TopLeft"};
    for (int i = 0; i < 3; ++i) {
        const Result result =
            run(QStringLiteral("layout"), QStringLiteral("--kind 3 --placement ") + placements[i], sizes);
        ASSERT_EQ(itemCount(result.root), 4);
        EXPECT_EQ(item(result.root, 0), firsts[i]);
        EXPECT_EQ(result.root.getString(u"placement"), placements[i]);
    }
}

TEST(Layout, TheJsonIsWhatIsDocumented)
{
    const Result result =
        run(QStringLiteral("layout"), QStringLiteral("--kind 1 --orient 7 --placement right"));
    const Node &root = result.root;
    EXPECT_EQ(childNames(root), (QStringList{"placement", "kind", "name", "count", "area_used", "over_edge",
                                             "refusal", "items", "kinds"}));
    EXPECT_EQ(root.getDouble(u"area_used"), 0.675);
    EXPECT_EQ(root.getString(u"refusal"), QString());
    EXPECT_EQ(*root.find(u"items.#0"), parsed(R"({"index": 1, "h": 601.0, "v": 877.5, "w": 150, "height": 200,
        "r": 90, "orient": 7, "dx": 100.0, "dy": 100.0, "dz": 0.0, "direction": "TopLeft"})"));
    ASSERT_EQ(root.child(u"kinds")->size(), 4);
    EXPECT_EQ(*root.find(u"kinds.#2"),
              parsed(R"({"kind": 2, "name": "Crisscross", "count": 23, "area_used": 0.8625,
        "over_edge": 0.0, "refusal": ""})"));
}

TEST(Layout, SaysWhatReachesOverTheEdge)
{
    const Result result = run(QStringLiteral("layout"), QStringLiteral("--kind 2 --spacing 50"),
                              {"--product", "600x100", "--pallet", "1000x700"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.root.getDouble(u"over_edge"), 75);
}

TEST(Layout, MoreThanAPatternHoldsIsRefused)
{
    const QStringList sizes{"--product", "50x40", "--pallet", "1000x800"};
    const Result result = run(QStringLiteral("layout"), QStringLiteral("--kind 0"), sizes);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, QByteArray("palx: Wobj number is greater than 200\n"));
    EXPECT_EQ(result.root.getInt(u"count"), 361);
    EXPECT_EQ(itemCount(result.root), 0);
    // Without a kind, one that may be used is taken although others hold more.
    const Result best = run(QStringLiteral("layout"), QString(),
                            {"--product", "100x18", "--pallet", "1000x395", "--spacing", "0"});
    EXPECT_EQ(best.code, 0);
    EXPECT_EQ(best.root.getInt(u"kind"), 1);
    EXPECT_EQ(best.root.getInt(u"count"), 165);
    EXPECT_EQ(best.root.getInt(u"kinds.#0.count"), 210);
    const Result none = run(QStringLiteral("layout"), QString(), sizes);
    EXPECT_EQ(none.code, 1);
}

TEST(Layout, NothingFits)
{
    const Result result = run(QStringLiteral("layout"), QStringLiteral("--margins 500x0"));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.root.getInt(u"count"), 0);
    EXPECT_EQ(itemCount(result.root), 0);
}

TEST(Layout, ATableForReading)
{
    const PalxRun ran = runPalx(QStringList{"layout", "--kind", "0", "--format", "table"} + kSizes);
    EXPECT_TRUE(ran.out.contains("   20    702.00    801.50     0     0.0     0.0  Middle\n"))
        << ran.out.constData();
    EXPECT_TRUE(ran.out.contains("2  Crisscross                23 products    86.3 % of the pallet\n"));
}

TEST(Template, MakesEveryType)
{
    const struct
    {
        const char *options;
        int count;
        const char *first;
        const char *last;
    } cases[] = {
        {"--type overlap --num-x 2 --num-y 3", 6, "1: 75 100 0 middle", "6: 377 301 0 middle"},
        {"--type cross --num-x 3 --num-y1 5 --num-y2 3 --present 4", 13, "5: 75 100 0 middle",
         "17: 679 452 0 middle"},
        {"--type clip --offset-x 10 --offset-y 20 --space-x 5 --space-y 7", 4, "1: 95 110 0 middle",
         "4: 120 290 90 middle"},
    };
    for (const auto &c : cases) {
        const Result result = run(QStringLiteral("template"), QLatin1String(c.options));
        ASSERT_EQ(result.code, 0) << c.options << result.err.constData();
        EXPECT_EQ(childNames(result.root), (QStringList{"count", "refusal", "items"}));
        EXPECT_EQ(result.root.getInt(u"count"), c.count);
        ASSERT_EQ(itemCount(result.root), c.count) << c.options;
        EXPECT_EQ(item(result.root, 0), QLatin1String(c.first)) << c.options;
        EXPECT_EQ(item(result.root, c.count - 1), QLatin1String(c.last)) << c.options;
    }
}

TEST(Template, PrintsTheRefusal)
{
    const struct
    {
        const char *options;
        const char *reason;
    } cases[] = {
        {"--type overlap", "Invalid X number"},
        {"--type overlap --num-x 1", "Invalid Y number"},
        {"--type cross --num-x 1 --num-y1 1", "Invalid Y1 or Y2 number"},
        {"--type clip --present 197", "Wobj number is greater than 200"},
        {"--type clip --offset-x 650", "Wobj is beyond the pallet's x edge"},
        {"--type overlap --num-x 1 --num-y 6", "Wobj is beyond the pallet's y edge"},
    };
    for (const auto &c : cases) {
        const Result result = run(QStringLiteral("template"), QLatin1String(c.options));
        EXPECT_EQ(result.code, 1) << c.options;
        EXPECT_EQ(result.root.getString(u"refusal"), QLatin1String(c.reason)) << c.options;
        EXPECT_EQ(itemCount(result.root), 0);
        EXPECT_EQ(result.err, QByteArray("palx: ") + c.reason + '\n');
    }
}

TEST(Layout, WrongUsageIsSaid)
{
    const struct
    {
        const char *options;
        const char *named; ///< in the message
    } cases[] = {
        {"layout --pallet 1000x800", "--product"},
        {"layout --product 200 --pallet 1000x800", "--product"},
        {"layout --product 200x0 --pallet 1000x800", "--product"},
        {"layout --product -200x150 --pallet 1000x800", "--product"},
        {"layout --product 200xnan --pallet 1000x800", "--product"},
        {"layout --product 200x150x3 --pallet 1000x800", "--product"},
        {"layout --product 200x150 --pallet 1e9x800", "--pallet"},
        {"layout --product 200x150 --pallet 1000x800 --kind 4", "--kind"},
        {"layout --product 200x150 --pallet 1000x800 --spacing -1", "--spacing"},
        {"layout --product 200x150 --pallet 1000x800 --margins 5", "--margins"},
        {"layout --product 200x150 --pallet 1000x800 --placement up", "--placement"},
        {"template --product 200x150 --pallet 1000x800", "--type"},
        {"template --type star --product 200x150 --pallet 1000x800", "--type"},
        {"template --type clip --product 200x150 --pallet 1000x800 --num-x 100", "--num-x"},
        {"template --type clip --product 200x150 --pallet 1000x800 --offset-y 1000", "--offset-y"},
        {"template --type clip --product 200x150 --pallet 1000x800 --present -1", "--present"},
    };
    for (const auto &c : cases) {
        const PalxRun ran = runPalx(QString::fromLatin1(c.options).split(QLatin1Char(' ')));
        EXPECT_EQ(ran.code, 2) << c.options;
        EXPECT_TRUE(ran.err.contains(c.named)) << c.options << ran.err.constData();
        EXPECT_EQ(ran.out, QByteArray()) << c.options;
    }
}
