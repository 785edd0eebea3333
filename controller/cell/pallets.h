#pragma once

#include "controller/cell/collision.h"
#include "controller/cell/recipe_plan.h"

#include <array>

namespace controller::cell {

/// A product that lies on a pallet.
struct Resting
{
    Body body;
    double errorMm = 0;  ///< distance of its top's middle from its put point
    double errorDeg = 0; ///< angle of its turn to that of its put point
};

/// What lies on the pallet at one side of the cell.
class PalletPlace
{
public:
    explicit PalletPlace(int side) : side_(side) {}

    bool isInPlace() const { return isInPlace_; }
    void setInPlace(bool isInPlace) { isInPlace_ = isInPlace; }
    /// An empty pallet takes the place of what is there.
    void clear();
    /// Recipe by which the side is stacked from now on. The pallet stands where that says.
    void follow(std::shared_ptr<const RecipePlan> plan);
    const RecipePlan *plan() const { return plan_.get(); }
    /// Lays the separator sheets that come before a layer. Numbers from 1.
    void laySheetsBelow(int layer);
    void put(const Body &box, const Pose &putPoint);

    const std::vector<Resting> &boxes() const { return boxes_; }
    /// The pallet, then the sheets, then the boxes. Nothing while no pallet is there or no recipe was ever followed.
    template <class Visit> void visit(Visit visit) const
    {
        if (!isInPlace_ || !plan_)
            return;
        visit(pallet_);
        for (const Body &sheet : sheets_)
            visit(sheet);
        for (const Resting &box : boxes_)
            visit(box.body);
    }
    /// The same, but only what reaches above that height [m].
    template <class Visit> void visitAbove(double height, Visit visit) const
    {
        if (!isInPlace_ || !plan_ || top_ <= height)
            return;
        visit(pallet_);
        for (const Body &sheet : sheets_)
            visit(sheet);
        for (std::size_t i = 0; i < boxes_.size(); ++i)
            if (tops_[i] > height)
                visit(boxes_[i].body);
    }

    /// The piece to go on with, by what lies there: the first that is missing, counted through the layers. Behind the last
    /// piece: layers + 1, 1.
    void nextPiece(int *layer, int *piece) const;
    bool isFull() const;

    /// To keep, and back.
    orba::Node saved() const;
    /// `find` gives the recipe of a name, or null: then the pallet comes back empty.
    template <class Find> void restore(const orba::Node &kept, Find find)
    {
        restore(kept, find(kept.getString(u"recipe")));
    }

private:
    void restore(const orba::Node &kept, std::shared_ptr<const RecipePlan> plan);
    void addBox(const Resting &box);

    int side_;
    bool isInPlace_ = true;
    std::shared_ptr<const RecipePlan> plan_;
    Body pallet_;
    std::vector<Body> sheets_;
    std::vector<Resting> boxes_;
    std::vector<double> tops_; ///< of the boxes, by themselves, because they are looked through often
    int sheetsBelow_ = 1; ///< layer up to which sheets were laid
    double top_ = 0; ///< of everything
};

} // namespace controller::cell
