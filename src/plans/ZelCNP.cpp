// ZelCNP.cpp

#include "plans/ZelCNP.h"

namespace numbering {

int ZelCNP::_count = 0;

ZelCNP::ZelCNP():
	m_RefCount(1)
{
	++_count;
}

ZelCNP::~ZelCNP()
{
	--_count;
}

void ZelCNP::duplicate()
{
	++m_RefCount;
}

void ZelCNP::release()
{
	if (--m_RefCount == 0) delete this;
}

} // namespace numbering
