"""The figures of the documents, made from the output of document_data."""
