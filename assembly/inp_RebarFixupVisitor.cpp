#include "assembly/inp_RebarFixupVisitor.h"

inp_RebarFixupVisitor::~inp_RebarFixupVisitor() = default;
