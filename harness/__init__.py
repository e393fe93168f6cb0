"""What scripts, tests and benchmarks share: throwaway user folders and displays, the two stores, waiting.

Python modules of this project are found from its root: python3 -m tests.outside.open_edit PROGRAM."""
