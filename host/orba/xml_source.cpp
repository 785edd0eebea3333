#include "orba/xml_source.h"

#include "orba/format_detail.h"

#include <algorithm>
#include <cstring>

namespace orba {

namespace {

constexpr qint64 kTold = 128 * 1024; // bytes between two looks at the watch

/// By the mark at the beginning, or by the zero that stands beside the "<".
bool isWide(const char *bytes, qint64 size)
{
    constexpr qint64 kFirst = 4;
    const char *end = bytes + std::min(size, kFirst);
    return std::find(bytes, end, '\0') != end ||
           (size >= 2 && (std::memcmp(bytes, "\xfe\xff", 2) == 0 || std::memcmp(bytes, "\xff\xfe", 2) == 0));
}

} // namespace

XmlSource::XmlSource(QIODevice *source, const Watch &watch) : source_(source), watch_(watch)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 XmlSource::readData(char *bytes, qint64 size)
{
    if (error_.isSet())
        return -1;
    const qint64 count = source_->read(bytes, size);
    if (count <= 0)
        return count;
    if (done_ == 0 && isWide(bytes, count)) {
        format::fail(&error_, format::Texts::tr("the text is not UTF-8"));
        return -1;
    }
    done_ += count;
    if (watch_ && done_ - told_ >= kTold) {
        told_ = done_;
        if (!watch_(done_, source_->size())) {
            format::failStopped(&error_);
            return -1;
        }
    }
    return check(bytes, count); // up to a fault, so that the reader comes to its place
}

const char *XmlSource::skip(const char *at, const char *end) const
{
    const auto until = [at, end](char c) {
        const void *found = std::memchr(at, c, static_cast<std::size_t>(end - at));
        return found ? static_cast<const char *>(found) : end;
    };
    switch (state_) {
    case State::Text:
        return until('<');
    case State::DoubleQuoted:
        return until('"');
    case State::SingleQuoted:
        return until('\'');
    default:
        return at;
    }
}

qint64 XmlSource::check(const char *bytes, qint64 size)
{
    const char *end = bytes + size;
    for (const char *at = skip(bytes, end); at != end; at = skip(at, end)) {
        const State before = state_;
        state_ = after(*at);
        if (attributes_ > kMostAttributes)
            format::fail(&error_,
                         format::Texts::tr("an element has more than %1 attributes").arg(kMostAttributes));
        else if (before == State::Declaration && state_ == State::Text)
            format::fail(&error_, format::Texts::tr("document types and entities are not accepted"));
        if (error_.isSet())
            return at - bytes;
        last_[0] = last_[1];
        last_[1] = *at++;
    }
    return size;
}

XmlSource::State XmlSource::after(char c)
{
    switch (state_) {
    case State::Text:
        return State::Open;
    case State::Open:
        attributes_ = 0;
        return c == '!' ? State::Declaration : c == '?' ? State::Instruction : afterInTag(c);
    case State::Declaration: // until it shows what it is; Text is none
        if (c == '-')
            return last_[1] == '-' ? State::Comment : State::Declaration;
        return c == '[' && last_[1] == '!' ? State::Data : State::Text;
    case State::Tag:
        return afterInTag(c);
    case State::DoubleQuoted:
    case State::SingleQuoted:
        return State::Tag;
    case State::Comment:
        return c == '>' && last_[0] == '-' && last_[1] == '-' ? State::Text : state_;
    case State::Data:
        return c == '>' && last_[0] == ']' && last_[1] == ']' ? State::Text : state_;
    case State::Instruction:
        return c == '>' && last_[1] == '?' ? State::Text : state_;
    }
    return state_;
}

XmlSource::State XmlSource::afterInTag(char c)
{
    attributes_ += c == '=' ? 1 : 0;
    return c == '"'    ? State::DoubleQuoted
           : c == '\'' ? State::SingleQuoted
           : c == '>'  ? State::Text
                       : State::Tag;
}

} // namespace orba
