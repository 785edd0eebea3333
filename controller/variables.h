#pragma once

#include "orba/node.h"

#include <QHash>

namespace controller {

/// The variables of one project. They stand in the list that panel and controller share ("quill.project.var._list"): each
/// with "name", "type" (bool, int, double, string, clock, robtarget), "pers" (a bool or the text "true") and "value", whose
/// first child holds the value. This class keeps what the list does not say: the first values of those that are not
/// persistent, with which they start again after a restart.
class Variables
{
public:
    /// The list was replaced or edited: a variable that was not there is declared with the value that it has.
    void follow(const orba::Node &list);
    /// The same for the list of another project.
    void exchange(const orba::Node &list);

    /// Values by name, from the panel: only persistent variables, of the right kind, all or none. Returns why not, empty
    /// when done. Kinds: bool takes a bool, 0 or 1; int a whole number; double any number; string a text; robtarget a text
    /// of its form; clock nothing, it runs by itself.
    static QString modify(orba::Node &list, const orba::Node &values);
    /// One value from a program, persistent or not; else the same.
    static QString assign(orba::Node &list, const QString &name, const orba::Node &value);
    /// The node that holds the value of a variable; null when there is none.
    static const orba::Node *value(const orba::Node &list, const QString &name);

    /// The list to keep: those that are not persistent with their first values.
    orba::Node kept(const orba::Node &list) const;

private:
    QHash<QString, orba::Node> first_;
};

/// Whether a text has the form of a target: "p:{{x,y,z},{q1,q2,q3,q4},n}{cfg 8 numbers}{EJ 6 numbers}".
bool isTargetText(const QString &text);

} // namespace controller
