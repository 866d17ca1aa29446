// SqliteRowFeed: rows that wait in memory, as a table that the statements of a database can read.
//
// One statement takes a whole block of rows. Against a statement that is bound and run for each row this
// saves half the time: SQLite keeps its place in the tree of the table and sets up nothing anew.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "repository/storage/SqliteDatabase.h"

struct sqlite3_context;

/// A value in a row: a number, a text that stands elsewhere, or NULL.
class SqliteCell {
 public:
  SqliteCell() noexcept : number_(0), length_(null) {}
  explicit SqliteCell(std::int64_t value) noexcept : number_(value), length_(number) {}
  // An address that is null would be taken for NULL.
  explicit SqliteCell(std::string_view text) noexcept
      : text_(text.data() != nullptr ? text.data() : ""), length_(static_cast<std::int64_t>(text.size())) {}

  bool isNull() const noexcept { return length_ == null; }
  bool isNumber() const noexcept { return length_ == number; }
  /// Of a number.
  std::int64_t getNumber() const noexcept { return number_; }
  /// Of a text; an empty one otherwise.
  std::string_view getText() const noexcept {
    return length_ < 0 ? std::string_view() : std::string_view(text_, static_cast<std::size_t>(length_));
  }

 private:
  // In the place of the length of a text.
  static constexpr std::int64_t null = -1;
  static constexpr std::int64_t number = -2;
  union {
    const char* text_;
    std::int64_t number_;
  };
  std::int64_t length_;
};

/// Rows of one width, cell by cell.
class SqliteRowBlock {
 public:
  explicit SqliteRowBlock(std::size_t width) noexcept : width_(width) {}

  std::size_t getWidth() const noexcept { return width_; }
  std::size_t getCount() const noexcept { return count_; }
  /// The cells of the row that was added last, which are `getWidth()` many.
  SqliteCell* last() noexcept { return cells_.data() + cells_.size() - width_; }
  const SqliteCell* first() const noexcept { return cells_.data(); }
  /// `cells` are `getWidth()` many.
  void add(const SqliteCell* cells) {
    cells_.insert(cells_.end(), cells, cells + width_);
    ++count_;
  }
  void clear() noexcept {
    cells_.clear();
    count_ = 0;
  }

 private:
  std::size_t width_;
  std::size_t count_ = 0;
  std::vector<SqliteCell> cells_;
};

class KYR_EXPORT SqliteRowFeed {
 public:
  /// Rows have that many cells at most. The database must outlive the feed, and the feed all statements
  /// that read it.
  SqliteRowFeed(SqliteDatabase& database, std::size_t width);
  SqliteRowFeed(const SqliteRowFeed&) = delete;
  SqliteRowFeed& operator=(const SqliteRowFeed&) = delete;
  ~SqliteRowFeed();

  /// `SELECT` of the first cells of the rows, to stand behind an `INSERT INTO`.
  static std::string select(std::size_t width);
  /// Runs the statement, which reads the rows of this block. The texts of the cells must be valid UTF-8.
  void run(SqliteStatement& statement, const SqliteRowBlock& block);

 private:
  struct Module;

  SqliteDatabase& database_;
  std::string declaration_;
  const SqliteRowBlock* block_ = nullptr;  // the one that is being read
};
