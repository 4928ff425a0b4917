// The same card records as rows of SQLite, 31 text columns, only for comparison.
#pragma once

#include "records/card_record.h"

#include <functional>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

/// One database file with one table, its connection kept open and its insertion prepared.
class SqliteRows {
public:
    /// `journalMode` as SQLite spells it; every commit is flushed (synchronous = FULL). With
    /// `mapped` the file is read through the memory map.
    SqliteRows(const std::string &path, const std::string &journalMode, bool mapped = false);
    ~SqliteRows();
    SqliteRows(const SqliteRows &) = delete;
    SqliteRows &operator=(const SqliteRows &) = delete;

    /// True while nothing went wrong.
    bool works() const { return good; }
    void execute(const std::string &sql);
    /// Inserts one row, in its own transaction if none was begun. Texts are stored without trailing
    /// blanks, a field never assigned as NULL.
    void insert(const records::CardRecord &record);
    /// Reads every row in order into a record.
    void readAll(const std::function<void(const records::CardRecord &)> &take);
    long count();

private:
    void check(int code);
    sqlite3 *database = nullptr;
    sqlite3_stmt *insertion = nullptr;
    bool good = true;
};

} // namespace bench
