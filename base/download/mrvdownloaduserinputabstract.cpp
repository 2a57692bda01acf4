#include "download/mrvdownloaduserinputabstract.h"

// Not in the header, so that the type information lies in one library only.
MRVDownloadUserInputAbstract::~MRVDownloadUserInputAbstract() = default;
