#pragma once

#include "ui/pattern_list_model.h"
#include "ui/pattern_problems.h"
#include "ui/recipe_frame.h"
#include "ui/recipe_tables.h"

#include <functional>
#include <memory>

class PatternScene;

namespace Ui {
class PatternsFrame;
}

/// The plane patterns of a recipe: choosing, making, renaming and deleting one, its plan to edit by hand, and on
/// pages beside it its products with their places, tools, the order of placing, and what is wrong.
class PALX_API PatternsFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit PatternsFrame(QWidget *parent = nullptr);
    ~PatternsFrame() override;

    void refresh() override;
    QString pattern() const;
    void choosePattern(const QString &name);

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void connectEditing();
    void connectPages();
    void connectButtons();
    void bindItemFields();
    void setupPlans();
    void fillPatterns();
    void showPattern();
    void followSelection();
    void showStatus();
    void updateButtons();
    int item() const;

    void askName(const QString &title, const QString &proposal, void (PatternsFrame::*act)(const QString &));
    template <typename Dialog> void nameNewPattern(const std::function<void()> &then = {});
    template <typename Dialog> void openProducer();
    void copyPattern(const QString &name);
    void renamePattern(const QString &name);
    void deletePattern();
    void addItem();

    std::unique_ptr<Ui::PatternsFrame> ui_;
    PatternScene *scene_;
    ItemTableModel *items_;
    PatternListModel *plans_;
    NodeBinder *itemBinder_; ///< to the one product that is chosen
    QString shownPattern_;
    QVector<palx::PatternProblem> countProblems_;
    bool following_ = false; ///< the table follows the plan and not the other way round
};
