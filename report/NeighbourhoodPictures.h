// NeighbourhoodPictures: the neighbourhoods of all classes of a model, laid out by Graphviz.
//
// All or none: when anything goes wrong there are no pictures, and the page lays out all of them itself. So a
// page is the same whenever it is made, unless Graphviz is another one.
#pragma once

#include <string>

#include "report/GraphvizProcess.h"
#include "repository/model/KYRStoreModel.h"

class NeighbourhoodPictures {
 public:
  struct Bounds {
    /// Of all pictures together. Classes behind the one that would go beyond get none.
    std::size_t mostLines = 60000;
    GraphvizProcess::Patience patience;
  };
  enum class Outcome { done, notStarted, late, ended, notUnderstood };

  /// Asks that program for the places. Raises std::bad_alloc only.
  Outcome layOut(const KYRStoreModel& model, const std::string& program, const Bounds& bounds);
  Outcome layOut(const KYRStoreModel& model, const std::string& program) {
    return layOut(model, program, Bounds());
  }
  /// For the page: a JSON object of the picture of each class that has one, by its id. Empty when there are
  /// none.
  const std::string& getJson() const noexcept { return json_; }

 private:
  std::string json_;
};
