// The end of a class diagram.
#include "repository/model/KYRClassDiagram.h"

KYRClassDiagram::~KYRClassDiagram() { dissolve(); }
