#pragma once

#include "shell/problem.h"

#include <QList>
#include <QWidget>

class QLabel;

namespace panel {

/// Shown in place of a plug-in's page when a start failed: what, where and why, one block per problem.
class ProblemPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemPage(const QList<host::Problem> &problems, QWidget *parent = nullptr);
    void retranslate();

private:
    QLabel *title_;
};

} // namespace panel
