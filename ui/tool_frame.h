#pragma once

#include "stack/tool_record.h"
#include "ui/recipe_frame.h"

#include <memory>

class QDoubleSpinBox;
namespace Ui {
class ToolFrame;
}

/// The recipe's own tool, or the shared one where the recipe uses it: its point, load, and two touches of a tip that
/// tell its X and Y.
class PALX_API ToolFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit ToolFrame(QWidget *parent = nullptr);
    ~ToolFrame() override;

    void refresh() override;

protected:
    void retranslate() override;

private:
    palx::ToolKeeper keeper() const;
    orba::ModuleObject *tool() const;
    orba::ModuleObject *touches() const;
    void setTitles();
    void write();
    void writeNumber(int i, double shown);
    void measure();
    QList<double> shownNumbers() const;

    std::unique_ptr<Ui::ToolFrame> ui_;
    QList<QDoubleSpinBox *> fields_; ///< in the order of `palx::toolNumber`
    QList<double> shown_;            ///< only other numbers are an edit; showing rounds
};
