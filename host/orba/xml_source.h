#pragma once

#include "orba/module_manager.h"

#include <QIODevice>

namespace orba {

/// What stands between a file and the XML reader: hands the bytes on in order, tells the watch, and ends them early when
/// the watch wants no more, when they are in an encoding that does not extend ASCII, and at what would take the reader
/// for ever: document types, and elements with so many attributes that it compares all with all.
class XmlSource : public QIODevice
{
public:
    static constexpr int kMostAttributes = 64;

    /// Both outlive this.
    XmlSource(QIODevice *source, const Watch &watch);

    bool isSequential() const override { return true; }
    bool atEnd() const override { return error_.isSet() || source_->atEnd(); }
    /// Why the bytes ended early; not set when they did not.
    const FormatError &error() const { return error_; }

protected:
    qint64 readData(char *bytes, qint64 size) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    enum class State { Text, Open, Declaration, Tag, DoubleQuoted, SingleQuoted, Comment, Data, Instruction };

    /// How many of the bytes are good.
    qint64 check(const char *bytes, qint64 size);
    /// What does not change the state is passed over.
    const char *skip(const char *at, const char *end) const;
    State after(char c);
    State afterInTag(char c);

    QIODevice *source_;
    const Watch &watch_;
    FormatError error_;
    qint64 done_ = 0;
    qint64 told_ = 0;
    State state_ = State::Text;
    int attributes_ = 0;
    char last_[2] = {0, 0}; ///< the two bytes before, the nearer one second
};

} // namespace orba
