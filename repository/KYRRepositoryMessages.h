// KYRRepositoryMessages: the messages of the repository: what its operations refuse, and what can go
// wrong when a model is saved or loaded. They stand in the library's own catalogue, from number 100 on.
#pragma once

#include "foundation/KYRStdMessages.h"

class KYR_EXPORT KYRRepositoryMessages {
 public:
  template <unsigned int argumentCount>
  using Message = KYRStdMessages::Message<argumentCount>;
  KYRRepositoryMessages() = delete;

  // What operations refuse.
  static const Message<2> VALUE_OUT_OF_RANGE;
  static const Message<0> NO_OBJECT;
  static const Message<2> SCHEMA_HOLDS_NAME;
  static const Message<1> MODEL_HOLDS_DATA_PACKAGE;
  static const Message<2> TYPE_HOLDS_VALUE;
  static const Message<1> PACKAGE_IN_ITSELF;
  static const Message<1> TYPE_ON_ITSELF;
  static const Message<2> NOT_A_TIME;
  // Saving and loading. The first argument is the path, the second, when loading, the offset in bytes.
  static const Message<2> CANNOT_SAVE;
  static const Message<1> CANNOT_SAVE_NOT_A_FILE;
  static const Message<2> CANNOT_LOAD;
  static const Message<1> CANNOT_LOAD_NOT_A_FILE;
  static const Message<3> NOT_JSON;
  static const Message<2> NOT_A_MODEL;
  static const Message<3> UNKNOWN_VERSION;
  static const Message<3> UNKNOWN_MEMBER;
  static const Message<3> MEMBER_TWICE;
  static const Message<3> WRONG_VALUE;
  static const Message<3> MEMBER_MISSING;
  static const Message<3> UNKNOWN_CLASS;
  static const Message<4> CLASS_MISPLACED;
  static const Message<3> BAD_ID;
  static const Message<3> ID_TWICE;
  static const Message<3> UNKNOWN_REFERENCE;
  static const Message<4> WRONG_REFERENCE;
  static const Message<2> TYPES_IN_RING;
  // Imports. The bridge and the option without which it cannot begin; the file and the limit.
  static const Message<2> MISSING_BRIDGE_OPTION;
  static const Message<2> CONVERSION_LIMIT;
  // Databases of saved models.
  static const Message<1> NOT_A_MODEL_DATABASE;
  static const Message<2> UNKNOWN_DATABASE_VERSION;
};
