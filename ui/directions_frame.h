#pragma once

#include "pattern/rules/edit_move.h"
#include "ui/recipe_frame.h"

#include <QPoint>

#include <memory>

class PatternScene;
class QAbstractButton;

namespace palx {
class PatternEditing;
struct FeedingEdit;
} // namespace palx

namespace Ui {
class DirectionsFrame;
}

/// From which side each product of a pattern comes to its place, and by how much: for one product, several or
/// all, by hand or proposed. The plan shows the ways as arrows; what hits what stands in a list.
class PALX_API DirectionsFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit DirectionsFrame(QWidget *parent = nullptr);
    ~DirectionsFrame() override;

    void refresh() override;
    QString pattern() const;
    void choosePattern(const QString &name);

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void bindOffsets();
    void connectPad();
    void connectEditing();
    palx::PatternEditing *editing() const;
    /// What is edited: the chosen products, or all when none is chosen.
    palx::Selection meant() const;
    void fillPatterns();
    void showPattern();
    void showChoice();
    void showPad();
    void showProblems();
    void spreadOffset(const QString &path);

    /// A button of the pad and the side of the plan that it stands for.
    struct Side
    {
        QAbstractButton *button;
        QPoint side;
    };

    std::unique_ptr<Ui::DirectionsFrame> ui_;
    PatternScene *scene_;
    NodeBinder *itemBinder_; ///< to the last of the meant products
    QVector<Side> pad_;
    QString shownPattern_;
};
