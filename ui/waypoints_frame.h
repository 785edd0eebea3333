#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class WaypointsFrame;
}

/// Heights and taught points of the place and the pick side, and the offsets of both pallets.
///
/// What the shared tool or a work object calibrated by one point takes over is shown and not edited, and the
/// offsets are then the shared ones of all recipes. Follows the trigger "refresh_data" and raises it after an
/// edit of shared offsets.
class PALX_API WaypointsFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit WaypointsFrame(QWidget *parent = nullptr);
    ~WaypointsFrame() override;

    void refresh() override;

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void bindHeights();
    void bindOffsets();
    void connectPoints();
    void setTitles();
    void showSide(int side);
    bool isOnePoint() const;
    orba::ModuleObject *offsetsRoot() const;
    QString note(int side) const;

    std::unique_ptr<Ui::WaypointsFrame> ui_;
    NodeBinder *offsetBinder_; ///< to the node that holds the offsets in force
};
