#include "ui/project_tables.h"

#include "project/rules/project_variables.h"

namespace {

const orba::Node &variables()
{
    return m("quill.project.var._list")->node();
}

} // namespace

void ProgramTableModel::setProject(const QString &name)
{
    project_ = name;
    refresh();
}

int ProgramTableModel::readRows()
{
    programs_ = palx::projectPrograms(project_);
    return programs_.size();
}

QStringList ProgramTableModel::columns() const
{
    return {tr("Task"), tr("No."), tr("File"), tr("Description")};
}

QString ProgramTableModel::text(int row, int column) const
{
    const palx::ProgramFile &program = programs_.at(row);
    switch (column) {
    case 0:
        return program.task;
    case 1:
        return QString::number(program.number);
    case 2:
        return program.name;
    default:
        return program.description;
    }
}

int VariableTableModel::readRows()
{
    return variables().size();
}

QStringList VariableTableModel::columns() const
{
    return {tr("Name"), tr("Type"), tr("Value"), tr("Kept"), tr("Description")};
}

QString VariableTableModel::text(int row, int column) const
{
    const orba::Node *variable = variables().at(row);
    if (!variable)
        return QString();
    switch (column) {
    case 0:
        return variable->getString(u"name");
    case 1:
        return variable->getString(u"type");
    case 2:
        return variable->getString(u"value.[0][0][0]");
    case 3:
        return variable->getBool(u"pers") ? tr("yes") : tr("no");
    default:
        return palx::shownDescription(variable->getString(u"description"));
    }
}
