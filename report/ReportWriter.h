// Writing a model as a page for a browser.
#pragma once

#include <string_view>

#include "repository/model/KYRStoreModel.h"
#include "repository/storage/BlockOutput.h"

/// Writes one HTML document that holds all of the model and refers to nothing outside itself: the page
/// with its style and its script, the model as saved models are written (its diagrams without their
/// shapes), and each class diagram as a picture of which the boxes lead to the pages of what they show.
/// `messages`, a JSON list of lists of level, code and text, are shown as those of the import that has made
/// the model; empty for none. The page draws what is asked for. Whatever the model holds, it stays data: its
/// texts cannot end the element in which they stand. Raises what the sink raises, and std::bad_alloc.
void writeReport(const KYRStoreModel& model, std::string_view messages, BlockSink& sink);
