// GoogleTest includes it; what it defines is not needed.
#pragma once
