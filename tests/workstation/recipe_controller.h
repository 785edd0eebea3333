#pragma once

#include "link/fake_controller.h"
#include "link/recipe_summary.h"
#include "orba/module_manager.h"
#include "orba/tree_registry.h"
#include "support/recipe_tree.h"
#include "workstation/plugin_node.h"

/// A plugin node in its place and a controller that keeps recipes and takes tools.
class RecipeControllerTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        orba::Node *tree = orba::TreeRegistry::instance().addModule(palx::getPluginName());
        ASSERT_TRUE(orba::ModuleManager::readFromJson(
            QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json"), tree));
        held.reset(orba::Node::Kind::List);
        controller.onMessage = [this](const host::LinkMessage &message) { return answer(message); };
    }
    void TearDown() override { orba::TreeRegistry::instance().removeModule(palx::getPluginName()); }

    static orba::ModuleObject *addRecipe(const char *name)
    {
        orba::ModuleObject *stack = palx::addStack(QString::fromUtf8(name), QString());
        stack->node().ensure(u"points.put.#0.#0.put_p.trans")->assign(nodeFromJson("[0.5, 0.25, 0.125]"));
        return stack;
    }
    /// How often the controller was asked so since the last call.
    int takeCount(const char *request)
    {
        int count = 0;
        for (const host::LinkMessage &message : controller.seen)
            count +=
                message.kind == host::LinkMessage::Kind::Request && message.name == QLatin1String(request)
                    ? 1
                    : 0;
        controller.seen.clear();
        return count;
    }

    orba::Node held;    ///< the recipes that the controller has
    QString refusal;    ///< not empty: why requests are refused
    int toolResult = 0; ///< of "sys.toolset"

private:
    bool answer(const host::LinkMessage &message)
    {
        if (message.kind != host::LinkMessage::Kind::Request)
            return false;
        host::LinkMessage reply;
        reply.kind = host::LinkMessage::Kind::Reply;
        reply.id = message.id;
        reply.text = refusal;
        reply.status = refusal.isEmpty() ? host::status::kDone : host::status::kRefused;
        if (refusal.isEmpty())
            carryOut(message, &reply.payload);
        controller.send(reply);
        return true;
    }
    void carryOut(const host::LinkMessage &request, orba::Node *result)
    {
        if (request.name == QLatin1String("pallet.data"))
            held = request.payload;
        else if (request.name == QLatin1String("pallet.get.list"))
            *result = summaries();
        else if (request.name == QLatin1String("sys.toolset"))
            result->setInt(toolResult);
    }
    orba::Node summaries() const
    {
        orba::Node list;
        list.reset(orba::Node::Kind::List);
        for (int i = 0; i < held.size(); ++i)
            *list.add() = host::summaryOf(*held.at(i)).toNode();
        return list;
    }
};
