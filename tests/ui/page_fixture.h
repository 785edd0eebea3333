#pragma once

#include "bwaf/bmodule.h"
#include "orba/module_object.h"

#include <QTranslator>

#include <memory>

class StackHomePage;
class StackSetupPage;

/// The plug-in's tree as a module of the panel, built from the template, without the panel and its store.
class PluginTree
{
public:
    PluginTree();
    ~PluginTree();
    PluginTree(const PluginTree &) = delete;
    PluginTree &operator=(const PluginTree &) = delete;

    /// A recipe with patterns "A" (two products) and "B" (one), layers A, B and taught points.
    orba::ModuleObject *addRecipe(const char *name);
};

/// Both pages in a centre widget, joined as the plug-in's module joins them.
class Pages
{
public:
    Pages();
    ~Pages();
    /// Shows a recipe on the set-up page, with one of its frames.
    void open(const char *recipe, int frame = 0);
    /// A child of one of the pages or of a dialog that was opened from them.
    template <typename T> T *field(const char *name) const
    {
        T *found = center.findChild<T *>(QLatin1String(name));
        return found;
    }

    PluginTree tree;
    bwaf::CenterWidget center;
    bwaf::BModule module;
    StackHomePage *home;
    StackSetupPage *setup;
};

/// How often a trigger was raised since it was made.
class TriggerCount
{
public:
    explicit TriggerCount(const char *trigger);
    int take();

private:
    QObject context_;
    int count_ = 0;
};

/// A language whose texts are 40 % longer than ours.
class LongLanguage : public QTranslator
{
public:
    LongLanguage();
    ~LongLanguage() override;
    QString translate(const char *context, const char *text, const char *hint, int n) const override;
    bool isEmpty() const override { return false; }
};

/// Types a value into a spin box and leaves it, as an operator does.
template <typename Spin, typename Value> void enter(Spin *field, Value value)
{
    field->setValue(value);
    Q_EMIT field->editingFinished();
}
