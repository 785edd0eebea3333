#pragma once

#include "project/rules/project_tasks.h"
#include "ui/record_table_model.h"

/// The tasks of a project with their program files, one row for a file.
class PALX_API ProgramTableModel : public RecordTableModel
{
    Q_OBJECT

public:
    static constexpr int kFile = 2;        ///< column
    static constexpr int kDescription = 3; ///< column

    using RecordTableModel::RecordTableModel;

    void setProject(const QString &name);
    /// The file of a row; an empty one outside.
    palx::ProgramFile program(int row) const { return programs_.value(row); }

protected:
    int readRows() override;
    QStringList columns() const override;
    QString text(int row, int column) const override;
    bool isNumber(int column) const override { return column == 1; }

private:
    QString project_;
    QVector<palx::ProgramFile> programs_;
};

/// The variables of the current project.
class PALX_API VariableTableModel : public RecordTableModel
{
    Q_OBJECT

public:
    static constexpr int kValue = 2;       ///< column
    static constexpr int kDescription = 4; ///< column

    using RecordTableModel::RecordTableModel;

protected:
    int readRows() override;
    QStringList columns() const override;
    QString text(int row, int column) const override;
    bool isNumber(int) const override { return false; }
};
