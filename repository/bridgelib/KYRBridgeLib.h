// KYRBridgeLib: what bridges share when they build a model.
#pragma once

#include "foundation/KYROption.h"
#include "foundation/KYRString.h"
#include "repository/model/KYRDesignLevelType.h"
#include "repository/model/KYRElementType.h"
#include "repository/model/KYRModelForward.h"

class KYRBridgeSpecificationLiteral;

/// The upper bound of a multiplicity that stands for many.
constexpr int manyMultiplicity = 2147483645;

/// A new origin record that names the bridge, the origin as the host calls it, and the build version
/// of the bridge. It belongs to the caller until it is added to a model.
KYR_EXPORT KYRMetadataOrigin* generateMetadataOrigin(KYRBridgeSpecificationLiteral& specification,
                                                     const KYRString& originId,
                                                     const KYRString& buildVersion);
/// Stamps the model with the present time; with the time of the option "BP_MODIFICATION_TIME" (ISO
/// 8601) instead when the list has it and it is not empty. Raises a KYRException for a text that is
/// no such time.
KYR_EXPORT void setModelModificationTime(KYRModel& model, KYROptionList& options);

/// Deletes the design packages without content, from the innermost outwards: a package that held only
/// empty packages goes too. Elements and diagrams are content; notes and values on the package are
/// not. Needs no memory. Null is passed over.
KYR_EXPORT void deleteEmptyDesignPackages(KYRStoreModel* model);

/// The supertype role of the class in the generalization; null when there is none, or with `create`
/// a new one, which is added. Of the roles of the two, the shorter list is searched.
KYR_EXPORT KYRGeneralizationRole* getSupertypeGeneralizationRole(KYRGeneralization* generalization,
                                                                 KYRClass* superClass, bool create);
/// The same for the subtype role.
KYR_EXPORT KYRGeneralizationRole* getSubtypeGeneralizationRole(KYRGeneralization* generalization,
                                                               KYRClass* subClass, bool create);
/// The first role of the association that is not the given one; null when there is none.
KYR_EXPORT KYRAssociationRole* findReverseRole(KYRAssociationRole* role);
/// Marks the first role as the source of a two-role association and the second as its target.
KYR_EXPORT void setSourceProperty(KYRAssociationRole* source, KYRAssociationRole* target);
/// "n" when the bounds are equal, else "lower..upper"; many is "*".
KYR_EXPORT KYRString buildMultiplicity(int lower, int upper);

/// The model's first type of exactly that name and element type; null when there is none.
KYR_EXPORT KYRType* getType(KYRModel* model, const KYRString& name, int elementType);
/// A new base type of that name, not yet in a model.
KYR_EXPORT KYRConcreteType* createBaseType(const KYRString& name);
/// Merges derived types that are equal in name, data type, native data type, length, scale,
/// user-defined flag and values (names and values, in order) into the first of them. The two numbers
/// are 0.
KYR_EXPORT void factorizeTypes(KYRStoreModel* model, int reserved1, int reserved2);

/// The definition of a property, told apart by element type and name, both exactly. With `create` a
/// missing one is made from the other arguments and added to the model; else the result is then null.
KYR_EXPORT KYRPropertyType* fetchPropertyType(KYRModel* model, KYRElementType elementType,
                                              const KYRString& name, KYRDesignLevelType designLevel,
                                              const KYRString& usage, const KYRString& initialValue,
                                              const KYRString& dataType, bool create);
/// Sets the property on the object; of two values for one property the later one stays.
KYR_EXPORT void setPropertyValue(KYRPropertyType* propertyType, const KYRString& value, KYRElement* element);

/// The name for messages: the physical name, else the name; empty for null.
KYR_EXPORT const KYRString& getPhysicalName(const KYRModelObject* object);
/// The first presentation element made for the object on the diagram; null when there is none.
KYR_EXPORT KYRPresentationElement* getPresentationElement(KYRModelObject* object, KYRDiagram* diagram);

/// Deletes what the diagram cannot show: a presentation element whose object is gone, or is neither a
/// model element of the diagram nor a role of an association or a generalization that is one. The
/// others keep their order. Null is passed over.
KYR_EXPORT void verifyDiagram(KYRClassDiagram* diagram);
/// With `normalize` moves all that the diagram shows, without changing the picture, so that no box and
/// no line point lies at a negative place; negative sizes become 0. A shape without a place (all four
/// numbers 0) stays as it is, and so do line points that are not in the stored form. Without it the
/// picture stays at the place that the source gave it, and nothing is changed. Null is passed over.
KYR_EXPORT void processPresentationElements(KYRClassDiagram* diagram, bool normalize);
