#include "ui/problem_list.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui/pattern_view.h"
#include "ui_problem_list.h"

#include <QEvent>

using ix::xtheme::State;

namespace {

constexpr int kMostShown = 200; // nobody reads more; the summary counts all

} // namespace

ProblemList::ProblemList(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::ProblemList>())
{
    ui_->setupUi(this);
    setTouchScrolling(ui_->lstProblems);
    showProblems({});
}

ProblemList::~ProblemList() = default;

void ProblemList::attach(PatternView *view)
{
    view_ = view;
    connect(ui_->lstProblems, &QListWidget::itemClicked, this, [this](const QListWidgetItem *item) {
        view_->editing()->select(problems_.value(ui_->lstProblems->row(item)).items);
    });
}

void ProblemList::showProblems(const QVector<palx::PatternProblem> &problems)
{
    problems_ = problems;
    ui_->lstProblems->clear();
    for (const palx::PatternProblem &problem : problems.mid(0, kMostShown))
        ui_->lstProblems->addItem(problem.text);
    const bool good = problems.isEmpty();
    ui_->lblResult->setText(
        good ? tr("Nothing is wrong with the pattern.")
             : tr("%n things are wrong. Touch one to choose its products.", nullptr, problems.size()));
    ix::xtheme::setState(ui_->lblResult, good ? State::None : State::Attention);
}

void ProblemList::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showProblems(problems_);
    }
    QWidget::changeEvent(event);
}

/// Wrapped entries need another height at another width.
void ProblemList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ui_->lstProblems->doItemsLayout();
}
