"""The Python parts of the tests: modules, found from the project's root."""
