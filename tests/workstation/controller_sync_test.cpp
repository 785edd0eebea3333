#include "workstation/controller_sync.h"

#include "workstation/recipe_controller.h"

#include <QSignalSpy>
#include <QThreadPool>

using host::LinkMessage;
using orba::ModuleObject;
using orba::Node;

namespace {

class SyncTest : public RecipeControllerTest
{
protected:
    void SetUp() override
    {
        RecipeControllerTest::SetUp();
        connectLink();
    }
    /// The only request since the last call.
    LinkMessage takeRequest()
    {
        std::vector<LinkMessage> requests;
        for (const LinkMessage &message : controller.seen)
            if (message.kind == LinkMessage::Kind::Request)
                requests.push_back(message);
        controller.seen.clear();
        EXPECT_EQ(requests.size(), 1u);
        return requests.empty() ? LinkMessage() : requests.front();
    }
    static void setGlobalTool()
    {
        palx::pluginNode()->c("global_tool")->copyFrom(nodeFromJson(R"([{"name":"PalletTool1",
            "frame":{"pos":{"x":0.1,"y":0.2,"z":0.3}},"load":{"mass":12.5,"moment":[1,2,3],
            "pose":{"pos":{"x":0.4,"y":0.5,"z":0.6},"ori":{"euler":{"a":0.7,"b":0.8,"c":0.9}}}}}])"));
    }
};

TEST_F(SyncTest, OnlyTheSynchronousFormRefreshesTheTable)
{
    palx::addStack(QStringLiteral("A"), QString());
    palx::addStack(QStringLiteral("B"), QString());
    QSignalSpy refreshed(palx::triggerNode()->c("refresh_table"), &ModuleObject::changed);
    const Node before(palx::stacksNode()->node());
    palx::saveAllToRC(true);
    palx::stacksNode()->cmobj(0)->remove(); // editing goes on while the task sends
    QThreadPool::globalInstance()->waitForDone();
    settle();
    LinkMessage request = takeRequest();
    EXPECT_EQ(request.name, QStringLiteral("pallet.data"));
    EXPECT_EQ(request.payload, before);
    EXPECT_EQ(refreshed.count(), 0);

    palx::saveAllToRC(false);
    request = takeRequest();
    EXPECT_EQ(request.payload.size(), 1);
    EXPECT_EQ(refreshed.count(), 1);
}

TEST_F(SyncTest, VariablesAreTypedByTheProject)
{
    m("quill.project.var._list")
        ->copyFrom(nodeFromJson(
            R"([{"name":"count","type":"int","pers":"true"},{"name":"speed","type":"double","pers":true},
            {"name":"on","type":"bool","pers":true},{"name":"plain","type":"int","pers":"false"}])"));
    struct
    {
        const char *name, *value, *modify;
    } const cases[] = {{"count", "12", R"({"count":12})"},   {"count", "1.5", R"({"count":0})"},
                       {"speed", "1.5", R"({"speed":1.5})"}, {"on", "1", R"({"on":1})"},
                       {"on", "true", R"({"on":0})"},        {"plain", "1", "{}"}};
    for (const auto &one : cases) {
        settle();
        controller.seen.clear();
        palx::setValueOfPERSVar(QString::fromLatin1(one.name), QString::fromLatin1(one.value));
        settle();
        const LinkMessage request = takeRequest();
        EXPECT_EQ(request.name, QStringLiteral("monitor.pers.modify"));
        EXPECT_EQ(request.payload, nodeFromJson(one.modify)) << one.name << " = " << one.value;
    }
}

TEST_F(SyncTest, StepsComeInTheirOrder)
{
    ModuleObject *stack = palx::addStack(QStringLiteral("A"), QString());
    QStringList steps;
    std::vector<Node> sent;
    controller.onMessage = [&](const LinkMessage &message) {
        if (message.kind == LinkMessage::Kind::Request) {
            steps.append(message.name);
            sent.push_back(message.payload);
        }
        return false;
    };
    const auto note = [&](const char *path, const char *step) {
        QObject::connect(m(path), &ModuleObject::changed, link.get(),
                         [&steps, step] { steps.append(QLatin1String(step)); });
    };
    note("quill.log.current", "record");
    note("palx.trigger.refresh_table", "table");
    note("quill.toolpage.toolset", "tool");
    takeRecords();
    palx::saveAllToRC(false);
    palx::genPointsAndSaveToRC(stack, false);
    EXPECT_TRUE(takeRecords().isEmpty());
    palx::genPointsAndSaveToRC(stack, true);
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("warning: The way points have regenerated!")));
    palx::switchToToolset(stack->c("toolset"), false, false, true);
    palx::saveNameToRC(3, QStringLiteral("Box"), QStringLiteral("small"));
    EXPECT_EQ(steps, QStringList({"pallet.data", "table", "pallet.set.one", "record", "pallet.set.one",
                                  "sys.toolset", "tool", "pallet.set.name"}));
    EXPECT_EQ(sent[1], stack->node());
    EXPECT_TRUE(sent[1].has(u"get.retract_p"));
    EXPECT_EQ(sent.back(), nodeFromJson(R"({"index":3,"name":"Box","desc":"small"})"));
}

TEST_F(SyncTest, GlobalToolBecomesTheActiveOneUnlessItIsRefused)
{
    EXPECT_FALSE(palx::switchToTool()); // there is none
    setGlobalTool();
    toolResult = -2;
    EXPECT_FALSE(palx::switchToTool());
    EXPECT_EQ(m("quill.toolpage.toolset")->getString(), QString());
    toolResult = 0;
    controller.seen.clear();
    EXPECT_TRUE(palx::switchToTool());
    const LinkMessage request = takeRequest();
    EXPECT_EQ(request.name, QStringLiteral("sys.toolset"));
    EXPECT_EQ(request.payload, nodeFromJson(R"({"end":{"trans":[0.1,0.2,0.3],"rot":[0.7,0.8,0.9]},
        "ref":{"trans":[0,0,0],"rot":[0,0,0]},
        "load":{"cog":[0.4,0.5,0.6],"inertia":[1.0,2.0,3.0],"mass":12.5},"name":"PalletTool1"})"));
    EXPECT_EQ(m("quill.toolpage.toolset")->getString(), QStringLiteral("PalletTool1"));
    EXPECT_EQ(m("quill.body.toolset")->getString(), QString());
    controller.breakWay("pulled");
    settle();
    EXPECT_FALSE(palx::switchToTool());
}

TEST_F(SyncTest, StacksToolsetGoesUnderItsName)
{
    setGlobalTool();
    struct
    {
        bool usesGlobal, useDefault, zeroReference, zeroEnd;
        const char *name;
    } const cases[] = {{false, false, false, false, "A"},
                       {false, true, true, false, "default"},
                       {true, true, false, true, "PalletTool1"}};
    for (const auto &one : cases) {
        palx::stacksNode()->clear();
        ModuleObject *stack = palx::addStack(QStringLiteral("A"), QString());
        stack->set(nullptr, "use_global_tool", one.usesGlobal);
        ModuleObject *toolset = stack->c("toolset");
        toolset->copyFrom(nodeFromJson(R"({"end":{"trans":[1.0,2.0,3.0],"rot":[0.1,0.2,0.3]},
                                           "ref":{"trans":[4.0,5.0,6.0],"rot":[0.4,0.5,0.6]}})"));
        const Node before(toolset->node());
        controller.seen.clear();
        EXPECT_TRUE(palx::switchToToolset(toolset, one.zeroReference, one.zeroEnd, one.useDefault));
        const LinkMessage request = takeRequest();
        EXPECT_EQ(request.payload.getString(u"name"), QString::fromLatin1(one.name));
        const Node zero = nodeFromJson(R"({"trans":[0,0,0],"rot":[0,0,0]})"); // whole numbers
        EXPECT_EQ(*request.payload.find(u"ref"), one.zeroReference ? zero : *before.find(u"ref"));
        EXPECT_EQ(*request.payload.find(u"end"), one.zeroEnd ? zero : *before.find(u"end"));
        EXPECT_EQ(toolset->node(), before); // only the copy is zeroed
    }
}

} // namespace
