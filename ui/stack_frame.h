#pragma once

#include "pattern/rules/stack_courses.h"
#include "ui/recipe_frame.h"

#include <memory>

class StackPatternScene;

namespace Ui {
class StackFrame;
}

/// The whole stack to look at, piece by piece, beside the plan of the layer that is being laid. The piece that
/// is chosen is marked in both. Edits nothing.
class PALX_API StackFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit StackFrame(QWidget *parent = nullptr);
    ~StackFrame() override;

    void refresh() override;

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void showPiece(const palx::Piece &piece);

    std::unique_ptr<Ui::StackFrame> ui_;
    StackPatternScene *scene_;
};
