// The whole UML class tree.
#pragma once

#include "uml/UMLActions.h"
#include "uml/UMLActivities.h"
#include "uml/UMLBehaviors.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLInteractions.h"
#include "uml/UMLNamespaces.h"
#include "uml/UMLRelationships.h"
#include "uml/UMLUseCases.h"
#include "uml/UMLValues.h"
