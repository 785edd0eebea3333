#pragma once

#include <QSize>
#include <QString>

#include <optional>

namespace cli {

constexpr int kMinPicture = 64;   ///< pixels; smaller pictures show nothing
constexpr int kMaxPicture = 8192; ///< pixels; a larger picture fills the memory of a panel

/// What `render` is asked.
struct RenderOptions
{
    QString file;  ///< recipe XML, or the JSON of a whole plugin node
    QString stack; ///< name of the recipe; may be left out when the file holds one
    /// Counted from 1 at the pallet: the plan of that layer; unset: the whole stack.
    std::optional<int> layer;
    double turn = 0;           ///< of the whole stack: degrees clockwise, seen from above
    std::optional<int> pieces; ///< of the whole stack: how many products and sheets are laid; unset: all
    QString output;            ///< PNG file; replaced when the picture is whole, else left alone
    QSize size{1280, 800};     ///< pixels
};

/// Draws a plan or the whole stack into a file. Needs a QApplication. Returns the exit code, kWrongUsage for
/// a size outside the limits.
int runRender(const RenderOptions &options);

} // namespace cli
