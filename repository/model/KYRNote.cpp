// The destructor stands here so that the class has one home.
#include "repository/model/KYRNote.h"

KYRNote::~KYRNote() = default;
