#pragma once

#include "support/test_support.h"

/// A recipe as the panel sends it: `layers` layers of `products` products, their points spread by `seed`.
inline orba::Node makeRecipe(const QString &name, int layers, int products, double seed = 0)
{
    using orba::Node;
    Node recipe = nodeFromJson(R"({"name":"","desc":"","layers":[],"patterns":null,
        "get":{"get_p":{"trans":[1,0,1],"rot":[0,0,0]}},"points":{"put":[]}})");
    recipe.set(u"name", name);
    const auto fillPoint = [&seed](Node *point) {
        const double trans[] = {seed += 0.001, 0.5, 0.25};
        const double zeros[8] = {};
        point->ensure(u"trans")->setDoubles(trans, 3);
        point->ensure(u"rot")->setDoubles(zeros, 3);
        point->ensure(u"near")->setDoubles(zeros, 6);
        point->ensure(u"conf")->setDoubles(zeros, 8);
    };
    for (int i = 0; i < layers; ++i) {
        recipe.find(u"layers")->add()->ensure(u"pattern")->setString(QStringLiteral("P1"));
        Node *layer = recipe.find(u"points.put")->add();
        layer->reset(Node::Kind::List);
        for (int k = 0; k < products; ++k) {
            Node *product = layer->add();
            for (const char16_t *point :
                 {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"})
                fillPoint(product->ensure(point));
        }
    }
    return recipe;
}

/// A variable as the project page declares it.
inline orba::Node makeVariable(const char *name, const char *type, const char *value,
                               bool isPersistent = true)
{
    orba::Node variable =
        nodeFromJson(R"({"name":"","type":"","pers":"","d":[0,0,0],"value":{"[0][0][0]":""}})");
    variable.set(u"name", QLatin1String(name));
    variable.set(u"type", QLatin1String(type));
    variable.set(u"pers", isPersistent ? QStringLiteral("true") : QStringLiteral("false"));
    variable.find(u"value")->at(0)->setString(QLatin1String(value));
    return variable;
}
