// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

/// SQLite asks the system for each page by itself. Where it goes through a whole file, pictures and all, those calls
/// are most of the work.
namespace vellumry::readahead {

/// The name of a layer between SQLite and the operating system (https://www.sqlite.org/vfs.html) that reads a database
/// in blocks of many pages as long as most of them are asked for: for connections that go through a file and change
/// nothing. SQLite looks at the pages of a block where they lie, if it was told that it may map the file (`PRAGMA
/// mmap_size`, of any size). A block that cannot be read is read page by page, so that an error counts for its own
/// page only. Any thread.
[[nodiscard]] const char* layer();

/// Whether the system has refused to read a page of the database to this connection, which goes through the layer:
/// SQLite's check goes on then and counts it among the faults, not always in words that tell it from damage.
[[nodiscard]] bool hasRefused(sqlite3* connection);

} // namespace vellumry::readahead
