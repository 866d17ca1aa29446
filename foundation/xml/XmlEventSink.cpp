// The virtual table of the sinks stands here.
#include "foundation/xml/XmlEventSink.h"

XmlEventSink::~XmlEventSink() = default;
