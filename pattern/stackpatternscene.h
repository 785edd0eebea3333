#pragma once

#include "pattern/patternscene.h"

/// The plan of one layer of a recipe: the pattern or separator sheet that the layer names, with the outlines of
/// the layer below. Follows the recipe: another pattern, another order of layers, other items. Items are added
/// to the pattern that the layer names; a layer without one shows none.
class PALX_API StackPatternScene : public PatternScene
{
    Q_OBJECT

public:
    using PatternScene::PatternScene;

    /// From 0. A layer that the recipe does not have shows an empty pallet with a message.
    void setLayer(int layer);
    int layer() const { return layer_; }
    int layerCount();
    /// Where the layer is in the recipe; kind Blank when there is none.
    palx::LayerPlan layerPlan();
    /// Whether the outlines of the layer below are drawn; they are at first.
    void setGhostShown(bool shown);

protected:
    Content readContent(const palx::StackPlan &plan) const override;
    orba::ModuleObject *targetPattern() const override;
    QList<orba::ModuleObject *> shownPatterns() const override;
    void followChoice(palx::NodeFollower *follower) const override;

private:
    void addGhost(const palx::StackPlan &plan, Content *content) const;

    int layer_ = 0;
    bool ghostShown_ = true;
};
