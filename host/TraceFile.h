// TraceFile: `--trace`, what became of each element of a file, one JSON object a line.
#pragma once

#include <memory>
#include <string>

#include "foundation/KYRImportTrace.h"
#include "host/JsonOut.h"
#include "host/TraceCounts.h"
#include "repository/storage/ReplacedFile.h"

struct NormalizeReport;
class TextOut;

class TraceFile final : public KYRImportTrace {
 public:
  /// While it lives, imports tell it their elements, unless the path is empty. Raises KYRException when no
  /// file can be made there; the file that may be there stays until `commit`.
  explicit TraceFile(const std::string& path);
  ~TraceFile() override;

  void record(const KYRTraceRecord& told) override;
  void finish(const KYRTraceTotals& totals) override;
  /// Ends the trace and puts it in the place of its file, when one was asked for. `rules`, unless null, tells
  /// what the normalising step has done to the file.
  void commit(const NormalizeReport* rules);

  /// The sum, and what was lost for each reason, most frequent first; nothing unless wanted.
  void write(TextOut& out) const;
  /// The member "trace" of the object that is open; nothing unless wanted.
  void write(JsonOut& json) const;

 private:
  void addLine();

  std::string path_;
  std::unique_ptr<ReplacedFile> file_;  // null: none is wanted
  JsonOut json_;
  std::string buffer_;
  TraceCounts counts_;
  bool isFinished_ = false;
};
