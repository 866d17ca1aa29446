// Questions are made as they are taken, so only some stand in memory at a time.
#include "report/NeighbourhoodPictures.h"

#include <deque>
#include <string_view>

#include "report/GraphvizAnswer.h"
#include "report/GraphvizText.h"
#include "report/Neighbourhood.h"
#include "repository/storage/StoredNumbers.h"

namespace {

using Outcome = NeighbourhoodPictures::Outcome;

constexpr std::size_t enoughText = 32UL * 1024;
constexpr std::size_t longestLine = 64UL * 1024;

class Conversation {
 public:
  Conversation(const KYRStoreModel& model, std::size_t mostLines)
      : numbers_(model, StoredNumbers::Use::shared), linesLeft_(mostLines) {}

  Outcome hold(const std::string& program, GraphvizProcess::Patience patience);
  std::string takeJson();

 private:
  void ask();
  const KYRClass* nextClass();
  bool listen();
  bool hear(std::string_view line);

  StoredNumbers numbers_;
  std::size_t linesLeft_;
  unsigned int lastId_ = 0;
  bool isAsked_ = false;             // all that is to be asked
  std::deque<Neighbourhood> asked_;  // and not answered yet
  std::string question_;
  std::string heard_;
  std::unique_ptr<GraphvizAnswer> answer_;  // the one that is on its way, to the first of `asked_`
  std::string json_;
};

const KYRClass* Conversation::nextClass() {
  while (lastId_ < numbers_.getCount()) {
    const auto* const class_ = dynamic_cast<const KYRClass*>(numbers_.at(++lastId_));
    if (class_ != nullptr) return class_;
  }
  return nullptr;
}

void Conversation::ask() {
  while (!isAsked_ && question_.size() < enoughText) {
    const KYRClass* const class_ = nextClass();
    Neighbourhood neighbourhood;
    if (class_ != nullptr) neighbourhood = makeNeighbourhood(*class_, numbers_);
    isAsked_ = class_ == nullptr || neighbourhood.lines.size() > linesLeft_;
    if (isAsked_ || neighbourhood.lines.empty()) continue;
    linesLeft_ -= neighbourhood.lines.size();
    question_ += toGraphviz(neighbourhood);
    asked_.push_back(std::move(neighbourhood));
  }
}

bool Conversation::hear(std::string_view line) {
  if (asked_.empty()) return false;
  if (!answer_) answer_ = std::make_unique<GraphvizAnswer>(asked_.front());
  const GraphvizAnswer::State state = answer_->take(line);
  if (state == GraphvizAnswer::State::complete) {
    json_ += json_.empty() ? "{\"" : ",\"";
    json_ += std::to_string(asked_.front().boxes.front().id) + "\":\"" + answer_->pack() + '"';
    answer_.reset();
    asked_.pop_front();
  }
  return state != GraphvizAnswer::State::wrong;
}

bool Conversation::listen() {
  std::size_t start = 0;
  for (std::size_t end = heard_.find('\n'); end != std::string::npos; end = heard_.find('\n', start)) {
    if (!hear(std::string_view(heard_).substr(start, end - start))) return false;
    start = end + 1;
  }
  heard_.erase(0, start);
  return heard_.size() <= longestLine;
}

Outcome Conversation::hold(const std::string& program, GraphvizProcess::Patience patience) {
  GraphvizProcess process;
  bool isEnded = false;
  for (ask(); !asked_.empty(); ask()) {
    if (!process.isStarted() && !process.start(program, patience)) return Outcome::notStarted;
    if (isAsked_ && question_.empty() && !isEnded) {
      process.endQuestions();
      isEnded = true;
    }
    const GraphvizProcess::Outcome outcome = process.exchange(question_, heard_);
    if (!listen()) return Outcome::notUnderstood;
    if (outcome == GraphvizProcess::Outcome::late) return Outcome::late;
    if (outcome == GraphvizProcess::Outcome::ended && !asked_.empty()) return Outcome::ended;
  }
  return Outcome::done;
}

std::string Conversation::takeJson() {
  if (!json_.empty()) json_ += '}';
  return std::move(json_);
}

}  // namespace

NeighbourhoodPictures::Outcome NeighbourhoodPictures::layOut(const KYRStoreModel& model,
                                                             const std::string& program,
                                                             const Bounds& bounds) {
  Conversation conversation(model, bounds.mostLines);
  const Outcome outcome = conversation.hold(program, bounds.patience);
  json_ = outcome == Outcome::done ? conversation.takeJson() : std::string();
  return outcome;
}
