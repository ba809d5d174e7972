/**
 * @file tables.h
 * The encoder's message formats with their translations.
 */
#ifndef KV_TEXTS_TABLES_H
#define KV_TEXTS_TABLES_H

#include <array>
#include <span>

namespace kv::texts
{

/**
 * A printf format of the encoder with its translations, all UTF-8. Each translation has exactly
 * the conversions of the format, in the same order: nothing checks them when a message is made.
 */
struct Text {
    const char* format;
    const char* german;
    const char* japanese;
};

using Table = std::span<const Text>;

/** One table for each subject of the check. */
Table rangesTable();
Table ratesTable();
Table pictureTable();
Table levelTable();
Table gopTable();
Table discTable();
Table summaryTable();

/** All of them. */
std::array<Table, 7> tables();

} // namespace kv::texts

#endif
