#pragma once

#include "ui/recipe_frame.h"
#include "ui/recipe_tables.h"

#include <memory>

class PatternScene;

namespace Ui {
class PatternsFrame;
}

/// The plane patterns of a recipe: choosing, making, renaming and deleting one, its plan, and its products
/// with their places.
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
    void connectPages();
    void connectButtons();
    void bindItemFields();
    void fillPatterns();
    void showPattern();
    void showItem();
    void updateButtons();
    int item() const;
    void selectItem(int index);

    void askName(const QString &title, const QString &proposal, void (PatternsFrame::*act)(const QString &));
    void addPattern(const QString &name);
    void copyPattern(const QString &name);
    void renamePattern(const QString &name);
    void deletePattern();
    void addItem();
    void removeItem();
    void moveItem(int by);

    std::unique_ptr<Ui::PatternsFrame> ui_;
    PatternScene *scene_;
    ItemTableModel *items_;
    NodeBinder *itemBinder_; ///< to the selected product
};
