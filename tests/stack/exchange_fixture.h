#pragma once

#include "formats/random_tree.h"
#include "orba/module_manager.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "workstation/progress.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Is cancelled from the n-th step on; 0 never. The last part counts as a step.
class ScriptedProgress : public palx::Progress
{
public:
    explicit ScriptedProgress(int cancelAt = 0) : cancelAt_(cancelAt) {}
    void step(int done, int total, const QString &) override
    {
        ++steps;
        grows = grows && done >= last && done <= total;
        last = done;
    }
    bool isCancelled() override { return cancelAt_ > 0 && steps >= cancelAt_; }
    bool enterLastPart() override { return !isCancelled(); }

    int steps = 0;
    int last = 0;
    bool grows = true;

private:
    int cancelAt_;
};

/// A list of recipes in a plugin node of its own, and a file.
class RecipeExchangeTest : public ::testing::Test
{
protected:
    orba::ModuleObject *list() const { return plugin->c("stacks"); }
    QString path() const { return folder.filePath(QStringLiteral("pallet.xml")); }

    void fill(const QStringList &names)
    {
        for (const QString &name : names)
            list()->node().add()->ensure(u"name")->setString(name);
    }
    void write(const orba::Node &content)
    {
        EXPECT_TRUE(orba::ModuleManager::writeToXmlFile(content, path()));
    }
    void writeBytes(const QByteArray &bytes)
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
    }
    /// The template's keys hold their kinds, and everything else anything. Names differ.
    void addRandomRecipe(RandomTree &random, int index)
    {
        orba::Node *recipe = list()->node().add();
        *recipe = *plugin->node().child(u"default");
        if (index % 3 == 0)
            recipe->setName(orba::Name(QStringLiteral("key %1").arg(index)));
        QString name = random.text() + QString::number(index);
        recipe->ensureChild(orba::Name(u"name"))->setString(name);
        recipe->ensureChild(orba::Name(u"desc"))->setString(random.text());
        recipe->find(u"product_cfg.product.length")->setDouble(random.number());
        recipe->find(u"pallet_position")->setInt(random.integer());
        recipe->find(u"points")->assign(random.make());
        recipe->add(orba::Name(u"further"))->assign(random.make());
        recipe->add(orba::Name(u"further"))->assign(random.make());
        recipe->add()->assign(random.make());
    }

    std::unique_ptr<orba::ModuleObject> plugin = makePluginTree();
    QTemporaryDir folder;
    palx::NoProgress progress;
};
