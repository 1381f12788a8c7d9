// How often memory has been allocated by operator new in this program.
#pragma once

int AllocationCount();
