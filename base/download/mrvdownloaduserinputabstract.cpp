#include "download/mrvdownloaduserinputabstract.h"

// Here and not in the header, so that the type information lies in one library only.
MRVDownloadUserInputAbstract::~MRVDownloadUserInputAbstract() = default;
