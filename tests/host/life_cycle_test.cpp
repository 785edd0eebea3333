#include "bwaf/bmodule.h"
#include "shell/life_cycle.h"
#include "support/test_support.h"

#include <QPointer>

#include <gtest/gtest.h>

#include <functional>

using bwaf::BModule;
using bwaf::LifeCycle;
using bwaf::Step;

namespace {

/// Writes every step it takes, as "name.step", and its end.
class Recorder : public BModule
{
public:
    Recorder(const QString &name, QStringList *steps, QObject *parent = nullptr)
        : BModule(parent), steps_(steps)
    {
        setObjectName(name);
    }
    ~Recorder() override { note("end"); }
    void init() override { note("init"); }
    void afterInit() override { note("afterInit"); }
    void setup() override
    {
        note("setup");
        if (onSetup)
            onSetup();
    }
    void afterSetup() override { note("afterSetup"); }
    void render() override { note("render"); }
    void afterRender() override { note("afterRender"); }
    void idle() override { note("idle"); }
    void afterIdle() override { note("afterIdle"); }
    void beforeDetach() override { note("beforeDetach"); }
    void detach() override { note("detach"); }

    std::function<void()> onSetup;

private:
    void note(const char *step) { steps_->append(name() + QLatin1Char('.') + QLatin1String(step)); }
    QStringList *steps_;
};

class LifeCycleTest : public ::testing::Test
{
protected:
    Recorder *make(const char *name) { return new Recorder(QLatin1String(name), &steps); }
    QString taken()
    {
        const QString text = steps.join(QLatin1Char(' '));
        steps.clear();
        return text;
    }
    QStringList steps;
};

} // namespace

TEST_F(LifeCycleTest, NoStepRunsTwice)
{
    const std::unique_ptr<Recorder> a(make("a"));
    LifeCycle::advance({a.get()}, Step::Init);
    LifeCycle::advance({a.get(), a.get()}, Step::AfterInit);
    EXPECT_EQ(taken(), QStringLiteral("a.init a.afterInit"));
    LifeCycle::detach({a.get(), a.get()});
    LifeCycle::detach({a.get()});
    LifeCycle::advance({a.get()}, Step::AfterIdle);
    EXPECT_EQ(taken(), QStringLiteral("a.beforeDetach a.detach"));
}

TEST_F(LifeCycleTest, PagesAddedInSetupCatchUpInTheirOrder)
{
    const std::unique_ptr<Recorder> module(make("m"));
    module->onSetup = [&] {
        module->addSubmodule(make("home"));
        module->addSubmodule(make("set"));
        EXPECT_EQ(steps.last(), QStringLiteral("m.setup")); // not in the middle of the module's own step
    };
    LifeCycle::advance({module.get()}, Step::AfterSetup);
    EXPECT_EQ(taken(),
              QStringLiteral("m.init m.afterInit m.setup home.init home.afterInit home.setup set.init "
                             "set.afterInit set.setup m.afterSetup home.afterSetup set.afterSetup"));
}

TEST_F(LifeCycleTest, DetachingRunsBackwardsAndSkipsWhatWasNeverReached)
{
    std::unique_ptr<Recorder> a(make("a"));
    const std::unique_ptr<Recorder> b(make("b"));
    a->addSubmodule(make("a1"));
    a->addSubmodule(make("a2"));
    LifeCycle::advance({a.get(), b.get()}, Step::Init);
    taken();
    LifeCycle::detach({a.get(), b.get()});
    EXPECT_EQ(taken(), QStringLiteral("b.beforeDetach a2.beforeDetach a1.beforeDetach a.beforeDetach "
                                      "b.detach a2.detach a1.detach a.detach"));
    LifeCycle::end(a.release());
    EXPECT_EQ(taken(), QStringLiteral("a2.end a1.end a.end"));
}

TEST_F(LifeCycleTest, AModuleThatEndsInAStepIsLeftOut)
{
    const std::unique_ptr<Recorder> a(make("a"));
    QPointer<Recorder> b(make("b"));
    a->onSetup = [&] { delete b; };
    LifeCycle::advance({a.get(), b}, Step::AfterSetup);
    EXPECT_EQ(taken(), QStringLiteral("a.init b.init a.afterInit b.afterInit a.setup b.end a.afterSetup"));
    QPointer<Recorder> page(make("page"));
    a->addSubmodule(page);
    delete page;
    EXPECT_TRUE(a->submodules().isEmpty());
}
