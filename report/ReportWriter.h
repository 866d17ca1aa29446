// Writing a model as a page for a browser.
#pragma once

#include <string_view>

#include "repository/model/KYRStoreModel.h"
#include "repository/storage/BlockOutput.h"

/// What a page shows besides the model, each as JSON, and empty for nothing.
struct ReportAdditions {
  std::string_view
      messages;  // of the import that has made the model: a list of lists of level, code and text
  std::string_view pictures;  // as NeighbourhoodPictures makes them; the page lays out the others itself
};

/// Writes one HTML document that holds all of the model and refers to nothing outside itself: the page
/// with its style and its script, the model as saved models are written (its diagrams without their
/// shapes), and each class diagram as a picture of which the boxes lead to the pages of what they show.
/// The page draws what is asked for. Whatever the model holds, it stays data: its texts cannot end the
/// element in which they stand. Raises what the sink raises, and std::bad_alloc.
void writeReport(const KYRStoreModel& model, const ReportAdditions& additions, BlockSink& sink);
