// SqliteFile: what a database of a test answers, as lines of text.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

class SqliteFile {
 public:
  explicit SqliteFile(const std::string& path) {
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
  }
  SqliteFile(const SqliteFile&) = delete;
  SqliteFile& operator=(const SqliteFile&) = delete;
  ~SqliteFile() { sqlite3_close(handle_); }

  /// Values are separated by "|", rows by a line break; NULL is "-".
  std::string ask(const std::string& query) const {
    std::string answer;
    char* error = nullptr;
    sqlite3_exec(handle_, query.c_str(), addRow, &answer, &error);
    if (error != nullptr) answer = error;
    sqlite3_free(error);
    return answer;
  }

 private:
  static int addRow(void* answer, int count, char** values, char**) {
    std::string& text = *static_cast<std::string*>(answer);
    if (!text.empty()) text += '\n';
    for (int i = 0; i < count; ++i) {
      if (i != 0) text += '|';
      text += values[i] != nullptr ? values[i] : "-";
    }
    return 0;
  }

  sqlite3* handle_ = nullptr;
};
