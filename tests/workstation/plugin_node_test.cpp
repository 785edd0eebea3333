#include "workstation/plugin_node.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using orba::Node;

namespace {

TEST(Records, CopyCountsBySourceAndStopsAtTheDestination)
{
    struct
    {
        const char *source, *destination, *after;
    } const cases[] = {
        {R"({"conf":[1,2,3,4],"trans":[0.5,"1.5",null]})",
         R"({"trans":[9.0,9.0,9.0],"conf":[0.0,0.0,0.0,0.0,5.0,6.0]})",
         R"({"trans":[0.5,1.5,0.0],"conf":[1.0,2.0,3.0,4.0,5.0,6.0]})"},
        {R"({"conf":[1.0,2.0,3.0]})", R"({"conf":[0.0]})", R"({"conf":[1.0]})"},
        {R"({"rot":[1.0,2.0,3.0]})", R"({"rot":[0.0,0.0,0.0]})", R"({"rot":[1.0,2.0,3.0]})"},
    };
    for (const auto &one : cases) {
        ModuleObject source;
        source.copyFrom(nodeFromJson(one.source));
        ModuleObject destination;
        destination.copyFrom(nodeFromJson(one.destination));
        Node inner(destination.node());
        palx::copyPointData(&destination, &source);
        EXPECT_EQ(destination.node(), nodeFromJson(one.after)) << one.source;
        palx::copyPointData(inner, source.node()); // the inner form must agree
        EXPECT_EQ(inner, nodeFromJson(one.after)) << one.source;
    }
}

} // namespace
