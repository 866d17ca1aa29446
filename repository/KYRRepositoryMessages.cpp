// The texts of the repository's messages.
#include "repository/KYRRepositoryMessages.h"

namespace {
const char fatal[] = "FATAL";
}  // namespace

template <unsigned int argumentCount>
using Row = KYRRepositoryMessages::Message<argumentCount>;

const Row<2> KYRRepositoryMessages::VALUE_OUT_OF_RANGE(100, fatal, "{0} has no value {1}");
const Row<0> KYRRepositoryMessages::NO_OBJECT(101, fatal, "An object was to be added where there is none");
const Row<2> KYRRepositoryMessages::SCHEMA_HOLDS_NAME(
    102, fatal, "The schema '{0}' already holds an object of the name '{1}'");
const Row<1> KYRRepositoryMessages::MODEL_HOLDS_DATA_PACKAGE(
    103, fatal, "The model already holds a data package of the name '{0}'");
const Row<2> KYRRepositoryMessages::TYPE_HOLDS_VALUE(
    104, fatal, "The type '{0}' already holds a value of the name '{1}'");
const Row<1> KYRRepositoryMessages::PACKAGE_IN_ITSELF(105, fatal,
                                                      "The package '{0}' cannot be placed in itself");
const Row<1> KYRRepositoryMessages::TYPE_ON_ITSELF(106, fatal, "The type '{0}' cannot rest on itself");
const Row<2> KYRRepositoryMessages::NOT_A_TIME(
    107, fatal, "The value '{1}' of the option '{0}' is not a time such as 2026-01-01T00:00:00Z");
const Row<2> KYRRepositoryMessages::CANNOT_SAVE(120, fatal, "The file '{0}' cannot be saved: {1}");
const Row<1> KYRRepositoryMessages::CANNOT_SAVE_NOT_A_FILE(
    121, fatal, "The file '{0}' cannot be saved: it is not a regular file");
const Row<2> KYRRepositoryMessages::CANNOT_LOAD(130, fatal, "The model '{0}' cannot be loaded: {1}");
const Row<1> KYRRepositoryMessages::CANNOT_LOAD_NOT_A_FILE(
    145, fatal, "The model '{0}' cannot be loaded: it is not a regular file");
const Row<3> KYRRepositoryMessages::NOT_JSON(131, fatal, "File '{0}', byte {1}: {2}");
const Row<2> KYRRepositoryMessages::NOT_A_MODEL(132, fatal,
                                                "File '{0}', byte {1}: this is not a saved model");
const Row<3> KYRRepositoryMessages::UNKNOWN_VERSION(
    133, fatal, "File '{0}', byte {1}: the version {2} of the format is not known");
const Row<3> KYRRepositoryMessages::UNKNOWN_MEMBER(134, fatal,
                                                   "File '{0}', byte {1}: there can be no member '{2}' here");
const Row<3> KYRRepositoryMessages::MEMBER_TWICE(135, fatal,
                                                 "File '{0}', byte {1}: the member '{2}' stands here twice");
const Row<3> KYRRepositoryMessages::WRONG_VALUE(
    136, fatal, "File '{0}', byte {1}: the value of '{2}' is of the wrong kind or out of range");
const Row<3> KYRRepositoryMessages::MEMBER_MISSING(137, fatal,
                                                   "File '{0}', byte {1}: the member '{2}' is missing");
const Row<3> KYRRepositoryMessages::UNKNOWN_CLASS(138, fatal,
                                                  "File '{0}', byte {1}: there is no class '{2}'");
const Row<4> KYRRepositoryMessages::CLASS_MISPLACED(139, fatal,
                                                    "File '{0}', byte {1}: '{3}' cannot hold a {2}");
const Row<3> KYRRepositoryMessages::BAD_ID(140, fatal, "File '{0}', byte {1}: '{2}' is not an id");
const Row<3> KYRRepositoryMessages::ID_TWICE(141, fatal,
                                             "File '{0}', byte {1}: the id {2} stands here a second time");
const Row<3> KYRRepositoryMessages::UNKNOWN_REFERENCE(142, fatal,
                                                      "File '{0}', byte {1}: no object has the id {2}");
const Row<4> KYRRepositoryMessages::WRONG_REFERENCE(
    143, fatal, "File '{0}', byte {1}: '{3}' cannot refer to the object with the id {2}");
const Row<2> KYRRepositoryMessages::TYPES_IN_RING(
    144, fatal, "File '{0}': the type '{1}' rests on itself over other types");
const Row<2> KYRRepositoryMessages::MISSING_BRIDGE_OPTION(
    146, fatal, "The bridge '{0}' needs the option '{1}', which the option list does not hold");
const Row<2> KYRRepositoryMessages::CONVERSION_LIMIT(147, fatal,
                                                     "The packages of the file '{0}' list the same elements "
                                                     "over and over: the limit of {1} conversion steps is "
                                                     "exceeded");
const Row<1> KYRRepositoryMessages::NOT_A_MODEL_DATABASE(
    150, fatal, "No model can be added to '{0}': this database was not made for models");
const Row<2> KYRRepositoryMessages::UNKNOWN_DATABASE_VERSION(
    151, fatal, "No model can be added to '{0}': the version {1} of its tables is not known");
