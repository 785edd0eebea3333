#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

/// An entry as it is written, true or not.
struct RawEntry
{
    QByteArray name;
    QByteArray data;
    std::uint32_t mode = 0;  ///< as Unix notes it: kind and permissions
    std::uint16_t flags = 0; ///< bit 0: encrypted, bit 11: the name is UTF-8
    std::uint16_t method = 0;
    std::optional<std::uint32_t> size; ///< claimed; else the data's
    std::optional<std::uint32_t> checksum;
    std::uint32_t dosAttributes = 0;
};

/// An archive byte by byte, as somebody writes it who means no good.
QByteArray rawZip(const std::vector<RawEntry> &entries);

/// Zeros, packed; with their checksum.
RawEntry zeros(const QByteArray &name, int size);
