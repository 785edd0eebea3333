#include "ui/page_fixture.h"

#include "orba/module_manager.h"
#include "orba/tree_registry.h"
#include "shell/center_provider.h"
#include "support/recipe_tree.h"
#include "ui/current_recipe.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

const char *const kRecipe = R"({
    "product_cfg.product": {"length": 200, "width": 150, "height": 100, "weight": 2, "orient": 0, "dx": 0, "dy": 0,
                            "dz": 0, "direction": "Middle"},
    "patterns": {"A": [{"x": 75, "y": 100, "w": 150, "h": 200, "r": 0, "index": 1, "orient": 0, "direction": "Middle",
                        "dx": 0, "dy": 0, "dz": 0},
                       {"x": 225, "y": 100, "w": 150, "h": 200, "r": 0, "index": 2, "orient": 0, "direction": "Middle",
                        "dx": 0, "dy": 0, "dz": 0}],
                 "B": [{"x": 75, "y": 100, "w": 150, "h": 200, "r": 90, "index": 1, "orient": 0, "direction": "Top",
                        "dx": 0, "dy": 0, "dz": 0}]},
    "layers": [{"pattern": "A", "h_offset": 0}, {"pattern": "B", "h_offset": 0}],
    "put.put_p": P, "put.enter_p": P, "get.get_p": P, "get.enter_p": P
})";

} // namespace

PluginTree::PluginTree()
{
    orba::Node *tree = orba::TreeRegistry::instance().addModule(palx::getPluginName());
    orba::FormatError error;
    const QString file = QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json");
    if (!orba::ModuleManager::readFromJson(file, tree, &error))
        ADD_FAILURE() << qPrintable(error.text());
}

PluginTree::~PluginTree()
{
    orba::TreeRegistry::instance().removeModule(palx::getPluginName());
}

orba::ModuleObject *PluginTree::addRecipe(const char *name)
{
    const QByteArray text = QByteArray(kRecipe).replace(": P", ": " + pointJson(0.5, 0.25, 0.125));
    orba::ModuleObject *stack = addTestStack(palx::pluginNode(), text.constData());
    stack->node().ensure(u"name")->setString(QString::fromUtf8(name));
    stack->node().ensure(u"desc")->setString(QString());
    palx::stacksNode()->announceStructure();
    return stack;
}

Pages::Pages()
{
    host::setCenterWidget(&center);
    home = new StackHomePage(&center, &module);
    setup = new StackSetupPage(&center, &module);
    QObject::connect(home, &StackHomePage::reFreshPageDate, setup, &StackSetupPage::pageDateRefresh);
    center.addPage(home->wgt(), QStringLiteral("palx_workstation.home_page"));
    center.addPage(setup->wgt(), QStringLiteral("palx_workstation.setup_page"));
    center.resize(1120, 700);
    center.show();
}

Pages::~Pages()
{
    center.clearPages(); // the panel ends pages before their modules and the trees
    host::setCenterWidget(nullptr);
}

void Pages::open(const char *recipe, int frame)
{
    currentRecipe(&module)->setValue(QString::fromUtf8(recipe));
    Q_EMIT home->reFreshPageDate();
    center.setCurrentPage(QStringLiteral("palx_workstation.setup_page"));
    setup->showFrame(frame);
}

TriggerCount::TriggerCount(const char *trigger)
{
    QObject::connect(palx::triggerNode()->c(trigger), &orba::ModuleObject::changed, &context_,
                     [this] { ++count_; });
}

int TriggerCount::take()
{
    return std::exchange(count_, 0);
}

LongLanguage::LongLanguage()
{
    QCoreApplication::installTranslator(this);
}

LongLanguage::~LongLanguage()
{
    QCoreApplication::removeTranslator(this);
}

QString LongLanguage::translate(const char *, const char *text, const char *, int) const
{
    const QString own = QString::fromUtf8(text);
    const int extra = (own.size() * 2 + 4) / 5;
    return own + QStringLiteral("aneo rsti ").repeated(extra / 10 + 1).left(extra);
}
