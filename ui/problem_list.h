#pragma once

#include "ui/pattern_problems.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class PatternView;
namespace Ui {
class ProblemList;
}

/// What is wrong with the pattern of a `PatternView`, as it arises; a touch on an entry chooses the products
/// concerned.
class PALX_API ProblemList : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemList(QWidget *parent = nullptr);
    ~ProblemList() override;

    /// Once; the view must outlive the list's use.
    void attach(PatternView *view);
    /// The list is filled while it can be seen: a dragged product may make and end hundreds of problems.
    void showProblems(const QVector<palx::PatternProblem> &problems);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fill();
    void empty();

    std::unique_ptr<Ui::ProblemList> ui_;
    QPointer<PatternView> view_;
    QVector<palx::PatternProblem> problems_;
};
