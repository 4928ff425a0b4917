#include "bench/sqlite_rows.h"

#include <cstdio>
#include <sqlite3.h>

namespace bench {

namespace {

using records::CardField;
using records::CardRecord;
using records::kCardFields;

std::string createTable()
{
    std::string columns;
    for (const CardField &field : kCardFields)
        columns += (columns.empty() ? "" : ", ") + std::string(field.name) + " TEXT";
    return "CREATE TABLE card (" + columns + ")";
}

std::string insertRow()
{
    std::string places;
    for (std::size_t n = 0; n < kCardFields.size(); ++n)
        places += n == 0 ? "?" : ", ?";
    return "INSERT INTO card VALUES (" + places + ")";
}

std::string_view bytesOf(const CardRecord &record, const CardField &field)
{
    return record.view().substr(field.offset, field.length);
}

} // namespace

SqliteRows::SqliteRows(const std::string &path, const std::string &journalMode, bool mapped)
{
    check(sqlite3_open(path.c_str(), &database));
    execute("PRAGMA journal_mode = " + journalMode);
    execute("PRAGMA synchronous = FULL");
    if (mapped)
        execute("PRAGMA mmap_size = 1073741824");
    sqlite3_stmt *table = nullptr;
    check(sqlite3_prepare_v2(database, "SELECT 1 FROM sqlite_master", -1, &table, nullptr));
    const bool isNew = sqlite3_step(table) == SQLITE_DONE;
    sqlite3_finalize(table);
    if (isNew)
        execute(createTable());
    check(sqlite3_prepare_v2(database, insertRow().c_str(), -1, &insertion, nullptr));
}

SqliteRows::~SqliteRows()
{
    sqlite3_finalize(insertion);
    sqlite3_close(database);
}

void SqliteRows::check(int code)
{
    if (code == SQLITE_OK || code == SQLITE_DONE || code == SQLITE_ROW)
        return;
    if (good)
        std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(database));
    good = false;
}

void SqliteRows::execute(const std::string &sql)
{
    check(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr));
}

void SqliteRows::insert(const CardRecord &record)
{
    int place = 0;
    for (const CardField &field : kCardFields) {
        const std::string_view bytes = bytesOf(record, field);
        const std::size_t length = bytes.find_last_not_of(' ') + 1; // 0 when all are blanks
        ++place;
        if (bytes.front() == '\0')
            check(sqlite3_bind_null(insertion, place));
        else
            check(sqlite3_bind_text(insertion, place, bytes.data(), static_cast<int>(length),
                                    SQLITE_STATIC));
    }
    check(sqlite3_step(insertion));
    check(sqlite3_reset(insertion));
}

void SqliteRows::readAll(const std::function<void(const CardRecord &)> &take)
{
    sqlite3_stmt *rows = nullptr;
    check(sqlite3_prepare_v2(database, "SELECT * FROM card ORDER BY rowid", -1, &rows, nullptr));
    CardRecord record;
    while (sqlite3_step(rows) == SQLITE_ROW) {
        int column = 0;
        for (const CardField &field : kCardFields) {
            const void *text = sqlite3_column_text(rows, column);
            const auto length = static_cast<std::size_t>(sqlite3_column_bytes(rows, column));
            ++column;
            if (text == nullptr)
                std::fill_n(record.data().begin() + static_cast<std::ptrdiff_t>(field.offset),
                            field.length, '\0');
            else
                record.set(field, {static_cast<const char *>(text), length});
        }
        take(record);
    }
    check(sqlite3_finalize(rows));
}

long SqliteRows::count()
{
    sqlite3_stmt *rows = nullptr;
    check(sqlite3_prepare_v2(database, "SELECT count(*) FROM card", -1, &rows, nullptr));
    const long found = sqlite3_step(rows) == SQLITE_ROW ? sqlite3_column_int(rows, 0) : 0;
    check(sqlite3_finalize(rows));
    return found;
}

} // namespace bench
