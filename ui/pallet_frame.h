#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class PalletFrame;
}

/// Pallet, separator sheet, margins, and where the pallet stands in the cell.
///
/// A standard size writes length, width and height; "specification" then holds its number in "pallet_cfg"
/// counted from 1, and 0 as soon as the size is another one. Follows the triggers "refresh_pallet_data" and
/// "refresh_margin_data" (shows the fields again) and "reset_margin_data" (sets the margins to 0).
class PALX_API PalletFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit PalletFrame(QWidget *parent = nullptr);
    ~PalletFrame() override;

    void refresh() override;

protected:
    void stackChanged() override;
    void fieldWritten(const QString &path) override;
    void retranslate() override;

private:
    void bindFields();
    void followTriggers();
    void fillCombos();
    void choosePreset(int specification);
    void storeSpecification();
    void resetMargins();
    QString whyPlaceFixed() const;

    std::unique_ptr<Ui::PalletFrame> ui_;
};
