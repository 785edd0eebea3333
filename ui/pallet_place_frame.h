#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class PalletPlaceFrame;
}

/// Where the pallet lies: calibration points of the recipe's own work object and what frame they give, or, for a recipe on
/// the shared work objects, the taught corner of each pallet.
class PALX_API PalletPlaceFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit PalletPlaceFrame(QWidget *parent = nullptr);
    ~PalletPlaceFrame() override;

    void refresh() override;

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void fillCombos();
    void setTitles();
    void bindFields();
    void chooseTowards();
    void calibrateByOnePoint();
    void writeBoth(const QString &key, int value);
    orba::ModuleObject *shared() const;
    void refreshOwn();
    void refreshShared();
    void showFrame();

    std::unique_ptr<Ui::PalletPlaceFrame> ui_;
    NodeBinder *sharedBinder_; ///< to the plugin node while the shared work objects are used
};
