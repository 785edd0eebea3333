// `palx simulate`: a pallet of one layer, faults, traces, refusals. The demonstration fills both sides with the lift column;
// the cell itself is tested without the program.

#include "palx_run.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using orba::Node;

class Simulate : public ::testing::Test
{
protected:
    /// Runs recipes of an example that are one layer high.
    PalxRun run(const QStringList &options)
    {
        const QString file = folder.filePath(QStringLiteral("recipe.xml"));
        writeRecipes(file, recipes);
        return runPalx(QStringList{QStringLiteral("simulate"), file} + options);
    }

    QTemporaryDir folder;
    Node recipes = exampleContent("line-left.xml", 1);
};

/// "14 of 14 boxes on 1 pallets, 0 violations" and the counters of the left side.
QString summary(const PalxRun &run)
{
    const Node result = parsed(run.out);
    return QStringLiteral(
               "%1 of %2 boxes on %3 pallets, %4 violations; layer %5, piece %6, total %7, flag %8")
        .arg(result.getInt(u"boxes"))
        .arg(result.getInt(u"expected"))
        .arg(result.getInt(u"pallets"))
        .arg(result.child(u"violations")->size())
        .arg(result.getInt(u"counters.currentLayerL"))
        .arg(result.getInt(u"counters.layerCountL"))
        .arg(result.getInt(u"counters.totalPalletsL"))
        .arg(result.getInt(u"counters.flagL"));
}

const QString kFull =
    QStringLiteral("14 of 14 boxes on 1 pallets, 0 violations; layer 2, piece 1, total 1, flag 1");

} // namespace

TEST_F(Simulate, FillsAPallet)
{
    const PalxRun result = run({});
    EXPECT_EQ(result.code, 0) << result.err.constData();
    EXPECT_EQ(summary(result), kFull);
    const Node json = parsed(result.out);
    EXPECT_EQ(childNames(json),
              QStringList({"pallets", "boxes", "expected", "violations", "max_error_mm", "max_error_deg",
                           "seconds", "wall_seconds", "boxes_per_hour", "counters"}));
    EXPECT_LT(json.getDouble(u"max_error_mm"), 0.1);
    EXPECT_LT(json.getDouble(u"max_error_deg"), 0.01);
    EXPECT_NEAR(json.getDouble(u"boxes_per_hour"), 14 * 3600 / json.getDouble(u"seconds"), 1e-6);
}

TEST_F(Simulate, FaultsAreMendedAndTheSameSeedGivesTheSameTrace)
{
    const auto traceOf = [this](const char *name, const char *seed) {
        const QString trace = folder.filePath(QString::fromLatin1(name));
        QStringList options{"--trace", trace, "--seed", seed};
        for (const char *fault : {"conveyor-jam@20", "e-stop@25.2", "lost-box@31", "pallet-pulled@40",
                                  "no-vacuum@50.5", "collision@61.4", "power cut@75"})
            options += {"--fault", fault};
        const PalxRun result = run(options);
        EXPECT_EQ(result.code, 0) << result.err.constData();
        EXPECT_EQ(summary(result), kFull);
        return fileContent(trace);
    };
    const QByteArray trace = traceOf("a", "3");
    for (const char *fault :
         {"conveyor-jam", "e-stop", "lost-box", "pallet-pulled", "no-vacuum", "collision"})
        EXPECT_TRUE(trace.contains(QByteArray(" ") + fault + " on\n")) << fault;
    EXPECT_TRUE(trace.contains(" power cut\n"));
    EXPECT_EQ(trace, traceOf("b", "3"));
    EXPECT_NE(trace, traceOf("c", "4"));
}

TEST_F(Simulate, AViolationIsToldAndFails)
{
    // The second box comes where the first one lies.
    Node &pattern = *recipes.find(u"#0.patterns.A");
    for (const char16_t *key : {u"x", u"y"})
        pattern.at(1)->set(key, pattern.at(0)->getDouble(key));
    const PalxRun result = run({});
    EXPECT_EQ(result.code, 1);
    const Node json = parsed(result.out);
    ASSERT_GE(json.child(u"violations")->size(), 1);
    const Node &first = *json.find(u"violations.#0");
    EXPECT_EQ(childNames(first), QStringList({"task", "file", "line", "layer", "piece", "what"}));
    EXPECT_EQ(first.getString(u"task") + first.getString(u"file"), QStringLiteral("task0ZuoMaduo.mod"));
    EXPECT_EQ(first.getInt(u"layer") * 10 + first.getInt(u"piece"), 12);
    EXPECT_EQ(first.getString(u"what"),
              QStringLiteral("the carried box hits box 1 of layer 1 on the left pallet"));
}

TEST_F(Simulate, RefusesWhatItCannotDo)
{
    const struct
    {
        QStringList options;
        int code;
        const char *why;
    } cases[] = {
        {{"--fault", "fire@3"},
         2,
         "no fault is called \"fire\"; there are: no-vacuum, lost-box, conveyor-jam, pallet-pulled, e-stop, "
         "collision, power-cut"},
        {{"--fault", "e-stop"}, 2, "\"e-stop\" does not say when: NAME@SECONDS"},
        {{"--fault", "e-stop@nan"}, 2, "\"e-stop@nan\" does not say when: NAME@SECONDS"},
        {{"--seed", "-1"}, 2, "not in range"},
        {{"--scheme", "both"}, 1, "there is no recipe for the right pallet"},
        {{"--stack", "Nothing"}, 1, "Nothing"},
        {{"--trace", "/"}, 1, "/: "},
    };
    for (const auto &each : cases) {
        const PalxRun result = run(each.options);
        EXPECT_EQ(result.code, each.code) << qPrintable(each.options.join(' '));
        EXPECT_TRUE(result.err.contains(each.why)) << result.err.constData();
        EXPECT_TRUE(result.out.isEmpty()) << qPrintable(each.options.join(' '));
    }
}
