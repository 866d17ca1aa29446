// Loads a saved model and saves it again: `consumer FROM TO`. It says where plug-ins would be.
#include <iostream>

#include "foundation/KYRException.h"
#include "foundation/KYRFile.h"
#include "foundation/KYRString.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/storage/StoreModelFile.h"

int main(int count, char** arguments) {
  if (count != 3) return 2;
  try {
    const auto model = loadStoreModel(KYRFile(KYRString(arguments[1])));
    saveStoreModelFile(KYRFile(KYRString(arguments[2])), *model);
    std::cout << "plug-ins: " << PLUGIN_DIR << '\n';
    return 0;
  } catch (const KYRException& exception) {
    std::cerr << exception.getMessage().getCharacters() << '\n';
    return 1;
  }
}
