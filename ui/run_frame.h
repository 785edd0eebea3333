#pragma once

#include "orba/module_object.h"
#include "project/rules/run_side.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

class RunSideCard;
struct StartRequest;
namespace palx {
struct RunRecovery;
class ControllerRecipes;
class NodeFollower;
} // namespace palx
namespace Ui {
class RunFrame;
}

/// The line while it produces: a card for each side that the current project has. Everything shown is what the controller
/// says; what is pressed is asked of the controller, and shown when its variables say so. Follows the nodes only while it is
/// seen. A side whose program broke off is disabled, also unseen, and asked about as soon as the page is seen: the gripper is
/// to be cleared, layer and piece are to be confirmed, before the side is enabled again.
class PALX_API RunFrame : public QWidget
{
    Q_OBJECT

public:
    /// `recipes` tells whether the controller holds what the panel shows; it must outlive this.
    explicit RunFrame(const palx::ControllerRecipes *recipes, QWidget *parent = nullptr);
    ~RunFrame() override;

    RunSideCard *card(palx::LineSide side) const { return cards_[static_cast<std::size_t>(side)]; }
    /// Whether a project with a side is current.
    bool hasLine() const { return hasLine_; }

Q_SIGNALS:
    /// A project with a side is in use.
    void lineCame();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Of a side that broke off.
    struct BrokenOff
    {
        bool isHeldBack = false; ///< it was disabled until its piece is confirmed
        bool wasAsked = false;
    };
    void addCard(palx::LineSide side);
    void follow();
    void refresh();
    void showNone();
    void makeProject();
    void setEnabledSide(RunSideCard *card, bool on);
    void chooseRecipe(RunSideCard *card, int index);
    void startAt(RunSideCard *card);
    void recover(RunSideCard *card, bool thenEnable);
    void askForPiece(RunSideCard *card, const StartRequest &request, const palx::VariableChanges &further);
    void holdBack(const palx::RunRecovery &run);
    void askWhatBrokeOff(const palx::RunRecovery &run);
    void reset(RunSideCard *card);
    void ask(RunSideCard *card, const palx::VariableChanges &changes);
    void refuse(const QString &why);
    const orba::Node *recipeOf(const RunSideCard *card) const;
    QString recipeProblem(const RunSideCard *card) const;
    static palx::VariableChanges enablingChanges(const RunSideCard *card);
    void dropMismatch();
    QString recipeMismatch(const QString &name) const;

    std::unique_ptr<Ui::RunFrame> ui_;
    const palx::ControllerRecipes *recipes_;
    std::array<RunSideCard *, 2> cards_{};
    std::unique_ptr<palx::NodeFollower> follower_; ///< while the page is seen
    QTimer refresh_;                               ///< one for all changes of a turn of the loop
    std::array<BrokenOff, 2> brokenOff_;
    QPointer<QDialog> dialog_;
    const RunSideCard *refused_ = nullptr; ///< because of whose recipe the message says no
    bool hasLine_ = false;
    bool isStale_ = true; ///< the nodes that are followed are others now
};
